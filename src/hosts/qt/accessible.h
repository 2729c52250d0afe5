// The field to assistive technology: a group, named by its label, of named boxes.
#ifndef HOSTS_QT_ACCESSIBLE_H
#define HOSTS_QT_ACCESSIBLE_H

namespace gabarito::qt {

// Once a process; further calls do nothing.
void InstallAccessibility();

}  // namespace gabarito::qt

#endif  // HOSTS_QT_ACCESSIBLE_H
