#pragma once

class QLabel;
class QString;
class QWidget;

/// How a window shows what the user is to mend: in place, the control framed and a sentence beside it.
namespace zolv {

/// A place for the sentence, two lines high, hidden until there is one. It asks its layout for no width.
QLabel* MakeFaultSentence(QWidget* parent);

/// The height that a sentence takes, by the letters of `sample`.
int HeightOfFaultSentence(const QLabel& sentence, const QString& sample);

/// Frames a control for as long as `sentence`, which a screen reader says with it, is not empty.
void MarkFault(QWidget& control, const QString& sentence);

}  // namespace zolv
