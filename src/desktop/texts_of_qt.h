#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "text/caption_name.h"

/// Between the program's UTF-8 and Qt's strings.
namespace zolv {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// A caption as plain words: "&&" is one ampersand, a single "&" marks a key and is not shown, and neither is "(&K)" at
/// the end, as languages write it whose letters are no keys.
inline QString PlainCaption(std::string_view caption) {
    if (caption.size() >= 4 && caption.ends_with(')') && caption.substr(caption.size() - 4).starts_with("(&")) {
        caption.remove_suffix(4);
    }
    return ToQt(WithoutKeyMark(caption));
}

}  // namespace zolv
