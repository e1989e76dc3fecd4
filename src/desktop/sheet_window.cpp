#include "desktop/sheet_window.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>
#include <string_view>

#include "desktop/screen_room.h"
#include "desktop/sheet_pictures.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "reports/sheet_document.h"
#include "reports/sheet_file.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr QPageSize::PageSizeId kPaper = QPageSize::A4;
constexpr double kPaperMargin = 12;  // [mm]
constexpr double kFontSize = 8;      // points, with which the figures fill the first page

/// Figures on the first page, plots on the second, and no figure broken over two lines: a page that holds too little is
/// laid out larger, and prints smaller.
void FitOnTwoPages(QTextDocument& page, const QSizeF& paper) {
    constexpr double kPixelsPerPoint = 96.0 / 72;
    constexpr double kSmallest = 2;
    constexpr double kRounding = 1;  // of widths to whole pixels
    for (double scale = 1; scale <= kSmallest; scale += 0.05) {
        page.setPageSize(paper * (kPixelsPerPoint * scale));
        if (page.pageCount() <= 2 && page.size().width() <= page.pageSize().width() + kRounding) return;
    }
}

}  // namespace

SheetWindow::SheetWindow(QWidget* parent)
    : QDialog(parent), sheet_(SetUpSheet()), printer_(std::make_unique<QPrinter>()) {
    constexpr QSize kRoomy(1160, 860);  // two pages side by side
    setObjectName(QStringLiteral("SheetWindow"));
    setWindowTitle(ToQt(words["SheetTitle"]));
    printer_->setPageSize(QPageSize(kPaper));
    printer_->setPageMargins(QMarginsF(kPaperMargin, kPaperMargin, kPaperMargin, kPaperMargin),
                             QPageLayout::Millimeter);
    printer_->setDocName(ToQt(sheet_.Title));
    auto* const column = new QVBoxLayout(this);
    preview_ = new QPrintPreviewWidget(printer_.get(), this);
    preview_->setViewMode(QPrintPreviewWidget::AllPagesView);
    preview_->setZoomMode(QPrintPreviewWidget::FitInView);
    connect(preview_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* printer) { PaintOn(*printer); });
    column->addWidget(preview_, 1);
    AddButtons(*column);
    resize(kRoomy.boundedTo(RoomOnScreen(parent != nullptr ? *parent : *this).size()));
}

/// The preview goes before the printer that it shows.
SheetWindow::~SheetWindow() { delete preview_; }

void SheetWindow::AddButtons(QBoxLayout& column) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(kGap);
    const auto add = [&](const char* name, const std::string& caption, auto clicked) {
        auto* const button = new QPushButton(ToQt(caption), this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, clicked);
        row->addWidget(button);
    };
    add("PrintSheet", words["SheetPrint"], [this] { Print(); });
    add("SheetAsPdf", words["SheetAsPdf"], [this] { SavePdf(); });
    add("SaveSheet", words["SheetSaveAs"], [] { SaveSheet(); });
    add("CopySheet", words["SheetCopy"], [this] { QGuiApplication::clipboard()->setText(ToQt(TextOf(sheet_))); });
    row->addStretch(1);
    column.addLayout(row);
}

void SheetWindow::PaintOn(QPagedPaintDevice& device) const {
    QTextDocument page;
    SheetPictures pictures(sheet_, font());
    page.documentLayout()->registerHandler(QTextFormat::ImageObject, &pictures);
    QFont font = page.defaultFont();
    font.setPointSizeF(kFontSize);
    page.setDefaultFont(font);
    page.setDefaultStyleSheet(
        QStringLiteral("h1{font-size:13pt}h2{font-size:10pt}.short{white-space:nowrap}td,th{padding-right:8px}"));
    page.setDocumentMargin(0);
    page.setHtml(ToQt(HtmlOf(sheet_, SheetPictures::Markup)));
    FitOnTwoPages(page, device.pageLayout().paintRect(QPageLayout::Point).size());
    page.print(&device);
}

void SheetWindow::Print() {
    QPrintDialog dialog(printer_.get(), this);
    if (dialog.exec() == QDialog::Accepted) PaintOn(*printer_);
}

/// Made in memory, so that the file is there whole or not at all.
void SheetWindow::SavePdf() {
    const FileRequest request{.forSaving = true,
                              .title = words["SheetAsPdf"],
                              .filterLabel = "PDF (*.pdf)",
                              .presetName = "*.pdf",
                              .defaultExtension = "pdf",
                              .proposedName = sheet_.Title};
    const std::string path = AskForFile(request);
    if (path.empty() || path == request.presetName) return;
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&pdf);
        writer.setPageLayout(printer_->pageLayout());
        writer.setTitle(ToQt(sheet_.Title));
        PaintOn(writer);
    }
    const QByteArray& bytes = pdf.data();
    const std::string reason =
        WriteTextFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (!reason.empty()) ShowMessage(CannotWrite(path, reason));
}

}  // namespace zolv
