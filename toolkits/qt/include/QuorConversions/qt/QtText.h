#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace QuorConversions::QtToolkit {

/// A text of the library as one of Qt, and back.
[[nodiscard]] inline QString ToQt(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::wstring FromQt(const QString& text) { return text.toStdWString(); }

} // namespace QuorConversions::QtToolkit
