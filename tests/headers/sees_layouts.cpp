// Compiled, not run, with the headers that one folder of the field may include.
#include "gabarito/layouts/cep.h"
#include "gabarito/state/campo.h"
