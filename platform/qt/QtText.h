#pragma once

#include <QString>
#include <string_view>

namespace wxbrg {

/// A text for a widget: its line breaks are LF there.
inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).replace("\r\n", "\n");
}

}  // namespace wxbrg
