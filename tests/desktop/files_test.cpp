// Files opened, saved, dragged onto the window, and pictures.

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <QXmlStreamReader>

#include "desktop/picture_view.h"
#include "desktop/sheet_window.h"
#include "desktop/window_dialogs.h"
#include "reports/sheet_document.h"
#include "suites.h"

namespace zolv {
namespace {

/// Stands where a system has its viewer.
class ViewerStub : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void Open(const QUrl& url) { opened = url; }

public:
    QUrl opened;
};

class FilesAndPictures : public DesktopTest {
    Q_OBJECT

    /// Drags files onto the main window and lets go there.
    /// @return whether the window takes them
    bool Drop(const QList<QUrl>& urls);

private Q_SLOTS:
    void SavedAndOpenedAgain();
    void CancelledDialogsChangeNothing();
    void DialogsProposeANameAndRememberTheirFolder();
    void MessagesOfTheStartAreOneBox();
    void ManualIsLookedForBesideTheProgram();
    void DroppedSettings();
    void DroppedByUpperCaseName();
    void DroppedDamagedSettings();
    void OtherThingsAreNotTaken_data();
    void OtherThingsAreNotTaken();
    void CarPictureInItsProportions();
    void PictureThatIsNone_data();
    void PictureThatIsNone();
    void SheetIsWholeAndPrintsOnTwoPages();
};

/// A file of settings for the Sable T with a third gear of 1.9.
QByteArray Settings() {
    return "CarName: Sable T\r\nFPressure: 200\r\nRPressure: 190\r\nGearF: 3\r\nGear1: 3.6\r\nGear2: 2.6\r\n"
           "Gear3: 1.9\r\nGear4: 1.4\r\nGear5: 1.1\r\nGear6: 1\r\nFinal: 3\r\nSpeed1: 16\r\nSpeed2: 23\r\n"
           "Speed3: 32\r\nSpeed4: 39\r\nSpeed5: 50\r\nSpeed6: 60\r\nFWing: 7\r\nRWing: 14\r\n";
}

void Choose(const char* entry) {
    Find<QAction>(entry).trigger();
    Settle();
}

bool FilesAndPictures::Drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QWidget& main = WindowNamed("Zolv");
    QDragEnterEvent enter({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&main, &enter);
    // A window that took no notice of the drag gets no drop; one that comes all the same must do no harm.
    QDropEvent drop({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(&main, &drop);
    Settle();
    return enter.isAccepted() && drop.isAccepted();
}

void FilesAndPictures::SavedAndOpenedAgain() {
    ClickTab("Select_Page", 1);
    SelectAllAndType(Find<QLineEdit>("Gear3"), "1.85");
    Asked().answers << InFolder("mine.zolv");
    Choose("FileSave");
    QVERIFY(Asked().requests.back().forSaving);
    QCOMPARE(Asked().requests.back().defaultExtension, "zolv");
    QCOMPARE(TitleOf("Zolv"), QStringLiteral("Tarmaq Zolv (%1)").arg(InFolder("mine.zolv")));
    QVERIFY(Read("mine.zolv").contains("Gear3: 1.85\r\n"));

    SelectAllAndType(Find<QLineEdit>("Gear3"), "1.6");
    Choose("FileSave");  // asks no more
    QCOMPARE(Asked().requests.size(), 1U);
    QVERIFY(Read("mine.zolv").contains("Gear3: 1.6\r\n"));

    SelectAllAndType(Find<QLineEdit>("Gear3"), "2");
    Asked().answers << InFolder("mine.zolv");
    Choose("FileOpen");
    QVERIFY(!Asked().requests.back().forSaving);
    QCOMPARE(Find<QLineEdit>("Gear3").text(), QStringLiteral("1.6"));

    Choose("FileClose");
    QCOMPARE(TitleOf("Zolv"), QStringLiteral("Tarmaq Zolv"));
}

void FilesAndPictures::CancelledDialogsChangeNothing() {
    for (const char* entry : {"FileOpen", "FileSave", "FileSaveAs"}) {
        Choose(entry);
        QCOMPARE(TitleOf("Zolv"), QStringLiteral("Tarmaq Zolv"));
    }
    QCOMPARE(Asked().requests.size(), 3U);
    QCOMPARE(QDir::current().entryList(QDir::Files), QStringList{QStringLiteral("unknown.jpg")});
}

void FilesAndPictures::DialogsProposeANameAndRememberTheirFolder() {
    QVERIFY(QDir::current().mkpath(QStringLiteral("examples")) && QDir::current().mkpath(QStringLiteral("mine")));
    FileRequest request{.forSaving = true,
                        .title = "T",
                        .filterLabel = "F",
                        .presetName = "*.zolv",
                        .defaultExtension = "zolv",
                        .proposedName = "Sable/T"};
    const auto prepared = [](const WindowDialogs& ready, const FileRequest& asked) {
        auto dialog = std::make_unique<QFileDialog>();
        ready.Prepare(*dialog, asked);
        return dialog;
    };
    WindowDialogs dialogs;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QCOMPARE(prepared(dialogs, request)->directory().path(), QDir(documents).exists() ? documents : QDir::homePath());
    QCOMPARE(QFileInfo(prepared(dialogs, request)->selectedFiles().value(0)).fileName(),
             QStringLiteral("Sable_T.zolv"));

    dialogs.SetFolders({{QStringLiteral("*.zolv"), InFolder("mine")}, {QStringLiteral("*.cup"), InFolder("gone")}});
    QCOMPARE(prepared(dialogs, request)->directory().path(), InFolder("mine"));
    request.proposedName = FromQt(InFolder("old.zolv"));  // where the set-up has come from
    QCOMPARE(prepared(dialogs, request)->selectedFiles(), QStringList{InFolder("old.zolv")});
    const FileRequest opening{.title = "T", .filterLabel = "F", .presetName = "*.zolv", .defaultExtension = ""};
    QVERIFY(prepared(dialogs, opening)->sidebarUrls().contains(QUrl::fromLocalFile(InFolder("examples"))));
}

/// The text of the message box that comes while `work` runs.
QString BoxDuring(const std::function<void()>& work) {
    QString text;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        text = box->text();
        box->close();
    });
    work();
    return text;
}

void FilesAndPictures::MessagesOfTheStartAreOneBox() {
    WindowDialogs dialogs;
    dialogs.Gather();
    dialogs.Message("One is missing.");
    dialogs.Message("Two is missing.");
    const QString text = BoxDuring([&] { dialogs.ShowGathered(); });
    for (const QString& part :
         {QDir::currentPath(), QStringLiteral("One is missing."), QStringLiteral("Two is missing.")}) {
        QVERIFY2(text.contains(part), qPrintable(text));
    }
}

void FilesAndPictures::ManualIsLookedForBesideTheProgram() {
    WindowDialogs dialogs;
    const QString text = BoxDuring([&] { QVERIFY(dialogs.ShowManual()); });
    QVERIFY2(text.contains(InFolder("Zolv Manual.pdf")) && text.contains(QLatin1String("scripts/manual")),
             qPrintable(text));
    QVERIFY(Write("Zolv Manual.pdf", "%PDF"));
    ViewerStub viewer;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &viewer, "Open");
    QVERIFY(dialogs.ShowManual());
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(viewer.opened, QUrl::fromLocalFile(InFolder("Zolv Manual.pdf")));
}

void FilesAndPictures::DroppedSettings() {
    QVERIFY(Write("a b \xC3\xB6.zolv", Settings()));
    const QString path = QDir::current().filePath(QString::fromUtf8("a b \xC3\xB6.zolv"));
    QVERIFY(Drop({QUrl::fromLocalFile(path)}));
    QCOMPARE(Find<QComboBox>("Select_Car").currentText(), QStringLiteral("Sable T"));
    QCOMPARE(Find<QLineEdit>("Gear3").text(), QStringLiteral("1.9"));
    QVERIFY(TitleOf("Zolv").contains(QString::fromUtf8("a b \xC3\xB6.zolv")));
}

void FilesAndPictures::DroppedByUpperCaseName() {
    QVERIFY(Write("RACE.ZOLV", Settings()));
    QVERIFY(Drop({QUrl::fromLocalFile(InFolder("RACE.ZOLV"))}));
    QCOMPARE(Find<QLineEdit>("Gear3").text(), QStringLiteral("1.9"));
}

void FilesAndPictures::DroppedDamagedSettings() {
    QVERIFY(Write("short.zolv", "CarName: Sable T\r\n"));
    QVERIFY(Drop({QUrl::fromLocalFile(InFolder("short.zolv"))}));
    QVERIFY(TakeMessage().contains(QLatin1String("short.zolv: Not a set-up saved by Zolv")));
    QCOMPARE(Find<QComboBox>("Select_Car").currentText(), QStringLiteral("Pell S"));
}

void FilesAndPictures::OtherThingsAreNotTaken_data() {
    QTest::addColumn<QStringList>("dropped");
    QTest::newRow("Folder") << QStringList{QStringLiteral("folder")};
    QTest::newRow("FolderNamedAsSettings") << QStringList{QStringLiteral("folder.zolv")};
    QTest::newRow("Picture") << QStringList{QStringLiteral("unknown.jpg")};
    QTest::newRow("TwoFiles") << QStringList{QStringLiteral("one.zolv"), QStringLiteral("two.zolv")};
    QTest::newRow("FromTheWeb") << QStringList{QStringLiteral("http://example.org/one.zolv")};
    QTest::newRow("Nothing") << QStringList{};
}

void FilesAndPictures::OtherThingsAreNotTaken() {
    QFETCH(QStringList, dropped);
    QVERIFY(QDir::current().mkdir(QStringLiteral("folder")) && QDir::current().mkdir(QStringLiteral("folder.zolv")));
    QVERIFY(Write("one.zolv", Settings()) && Write("two.zolv", Settings()));
    QList<QUrl> urls;
    for (const QString& name : dropped) {
        urls << (name.contains(QLatin1String("://")) ? QUrl(name)
                                                     : QUrl::fromLocalFile(QDir::current().filePath(name)));
    }
    const bool taken = Drop(urls);
    // A folder with that ending is taken for a file as it is dragged, and refused with a message when it is read.
    if (taken) QVERIFY(TakeMessage().contains(QLatin1String("folder.zolv")));
    QCOMPARE(taken, dropped == QStringList{QStringLiteral("folder.zolv")});
    QCOMPARE(Find<QComboBox>("Select_Car").currentText(), QStringLiteral("Pell S"));
    QCOMPARE(TitleOf("Zolv"), QStringLiteral("Tarmaq Zolv"));
}

/// The part of the view that a green picture covers.
QRect Green(PictureView& view) {
    const QImage seen = view.grab().toImage();
    QRect green;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QColor colour = seen.pixelColor(x, y);
            if (colour.green() > 100 && colour.red() < 40 && colour.blue() < 40) green |= QRect(x, y, 1, 1);
        }
    }
    return green;
}

void FilesAndPictures::CarPictureInItsProportions() {
    const QRect green = Green(Find<PictureView>("Info_CarPic"));  // 60 x 40
    QVERIFY(green.width() > 100);
    QVERIFY(std::abs(green.width() - 1.5 * green.height()) <= 3);
}

void FilesAndPictures::PictureThatIsNone_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("Text") << QByteArray("this is no picture");
    QTest::newRow("OnlyItsFirstBytes") << QByteArray("\xFF\xD8\xFF\xE0\0\x10JFIF", 10);
    QTest::newRow("Zeros") << QByteArray(100000, '\0');
}

void FilesAndPictures::PictureThatIsNone() {
    QFETCH(QByteArray, content);
    QVERIFY(Write("Ondo T.jpg", content));
    PickWithKeys(Find<QComboBox>("Select_Car"), "Ondo T");
    QCOMPARE(TextOf("Info_Mass"), QStringLiteral("1244 kg"));
    QVERIFY(!Green(Find<PictureView>("Info_CarPic")).isEmpty());  // unknown.jpg
}

/// HTML that is XML as well, with each plot inside it: the engine, the forces, and the four of the gearing.
void FilesAndPictures::SheetIsWholeAndPrintsOnTwoPages() {
    QXmlStreamReader html(ToQt(HtmlOf(SetUpSheet())));
    int plots = 0;
    int sections = 0;
    while (!html.atEnd()) {
        if (html.readNext() != QXmlStreamReader::StartElement) continue;
        if (html.name() == QLatin1String("h2")) ++sections;
        if (html.name() == QLatin1String("svg") && html.attributes().hasAttribute(QLatin1String("viewBox"))) ++plots;
    }
    QVERIFY2(!html.hasError(), qPrintable(html.errorString()));
    QCOMPARE(plots, 6);
    QCOMPARE(sections, 8);

    for (const bool held : {true, false}) {  // with all that a held set-up adds
        held ? Zolv.SetUpHold.Click() : Zolv.SetUpRelease.Click();
        SheetWindow sheet;
        sheet.show();
        auto* const preview = sheet.findChild<QPrintPreviewWidget*>();
        QVERIFY(preview != nullptr);
        preview->updatePreview();
        QCOMPARE(preview->pageCount(), 2);
    }
    SheetWindow sheet;
    sheet.findChild<QPushButton*>(QStringLiteral("CopySheet"))->click();
    QVERIFY(QApplication::clipboard()->text().startsWith(QLatin1String("Tarmaq Zolv: ")));
    Asked().answers << InFolder("sheet.pdf");
    sheet.findChild<QPushButton*>(QStringLiteral("SheetAsPdf"))->click();
    QVERIFY(Read("sheet.pdf").startsWith("%PDF-"));
}

const bool added = AddSuite<FilesAndPictures>("FilesAndPictures");

}  // namespace
}  // namespace zolv

#include "files_test.moc"
