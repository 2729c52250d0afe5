// Children that fail on purpose: a switch in front of everything that a field is built from.
#ifndef HOSTS_KIT_FAULTS_H
#define HOSTS_KIT_FAULTS_H

#include "gabarito/platform/host.h"
#include "hosts/kit/fault_switch.h"

namespace gabarito::kit {

// `host` with each child and the surface behind a wrapper that asks the switch first, under the names of the
// design table and "UserControl". The wrappers live by Host::Filhos; the switch outlives the field. Give it
// to Services::decorate.
Host WithFaults(const Host& host, FaultSwitch& faults);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FAULTS_H
