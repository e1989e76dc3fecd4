#pragma once

#include <QDialog>
#include <QImage>
#include <vector>

#include "drawing/document.h"

class QBoxLayout;
class QPagedPaintDevice;
class QPrinter;

namespace zolv {

/// The set-up sheet as it prints, on the paper of the user's printer: to be printed, saved as PDF or by its ending as
/// HTML, CSV or text, and copied as text.
class SheetWindow : public QDialog {
public:
    explicit SheetWindow(QWidget* parent = nullptr);

private:
    void AddButtons(QBoxLayout& column);
    void PaintOn(QPagedPaintDevice& device) const;
    void Print();
    void SavePdf();

    Document sheet_;
    std::vector<QImage> pictures_;
    QPrinter* printer_ = nullptr;
};

}  // namespace zolv
