// For a test that brings a page and a field of its own.
#ifndef HOSTS_WEB_EXPORTS_H
#define HOSTS_WEB_EXPORTS_H

#include <functional>
#include <memory>

#include "gabarito/platform/erro.h"
#include "hosts/web/web_field.h"

namespace gabarito::web {

// From now on the page's calls go to these alone, and `onError` gets what a handler raises.
void Use(std::shared_ptr<Page> page, std::shared_ptr<WebField> field,
         std::function<void(const Erro&)> onError);

}  // namespace gabarito::web

#endif  // HOSTS_WEB_EXPORTS_H
