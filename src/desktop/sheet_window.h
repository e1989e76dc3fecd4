#pragma once

#include <QDialog>
#include <memory>

#include "drawing/document.h"

class QBoxLayout;
class QPagedPaintDevice;
class QPrinter;
class QPrintPreviewWidget;

namespace zolv {

/// The set-up sheet as it prints, on the paper of the user's printer: to be printed, saved as PDF or by its ending as
/// HTML, CSV or text, and copied as text.
class SheetWindow : public QDialog {
public:
    explicit SheetWindow(QWidget* parent = nullptr);
    ~SheetWindow() override;

private:
    void AddButtons(QBoxLayout& column);
    void PaintOn(QPagedPaintDevice& device) const;
    void Print();
    void SavePdf();

    Document sheet_;
    std::unique_ptr<QPrinter> printer_;
    QPrintPreviewWidget* preview_ = nullptr;
};

}  // namespace zolv
