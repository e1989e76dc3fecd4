#pragma once

#include <QFontMetrics>
#include <QString>

/// Where long words of the language in force may be broken in narrow columns.
namespace zolv {

/// A text with a soft hyphen at each such place: Qt breaks there where it has to, and shows the hyphen only then.
[[nodiscard]] QString WithBreaks(const QString& text);

/// Width of the widest piece of a text that stays whole, with the hyphen at its end [px].
/// @param text  from WithBreaks
[[nodiscard]] int WidestPiece(const QFontMetrics& metrics, const QString& text);

}  // namespace zolv
