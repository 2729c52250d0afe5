// Texts between Qt and the field: both hold 16-bit units.
#ifndef HOSTS_QT_STRINGS_H
#define HOSTS_QT_STRINGS_H

#include <QtCore/QString>
#include <string_view>

namespace gabarito::qt {

inline QString ToQString(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

// Good until the text changes.
inline std::u16string_view ViewOf(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

}  // namespace gabarito::qt

#endif  // HOSTS_QT_STRINGS_H
