#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QUrl>
#include <QVBoxLayout>
#include <map>

#include "desktop/aero_page_view.h"
#include "desktop/beside_tabs.h"
#include "desktop/gearing_page_view.h"
#include "desktop/held_strip.h"
#include "desktop/info_page_view.h"
#include "desktop/order_fault.h"
#include "desktop/page_parts.h"
#include "desktop/picture_view.h"
#include "desktop/recent_files.h"
#include "desktop/screen_room.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/tyres_page_view.h"
#include "fields/label_names.h"
#include "files/settings_file.h"
#include "platform/dialogs.h"
#include "shell/shell_state.h"

namespace zolv {
namespace {

/// The settings file that is being dragged; empty for anything else.
QString SettingsFileIn(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
    const QString path = urls.front().toLocalFile();
    return path.endsWith(QLatin1String(".zolv"), Qt::CaseInsensitive) ? path : QString();
}

/// Holds a page that has words which wrap. Such a page would scroll as soon as it is not as high as it likes to be;
/// this lets its plots shrink first.
class ShrinkingPage : public QWidget {
public:
    explicit ShrinkingPage(QWidget* page) {
        auto* const room = new QVBoxLayout(this);
        room->setContentsMargins(0, 0, 0, 0);
        room->addWidget(page);
    }

    int heightForWidth(int width) const override { return layout()->totalMinimumHeightForWidth(width); }
};

/// A page that scrolls where it has too little room. The window's own ground shows through; a view's would be white.
QScrollArea* Scrolled(QWidget* page, QWidget* parent) {
    auto* const area = new QScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(new ShrinkingPage(page));
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    return area;
}

}  // namespace

MainWindow::MainWindow(Binding& binding, QWidget* parent) : QMainWindow(parent), binding_(binding) {
    setAcceptDrops(true);
    setWindowTitle(QStringLiteral("[*]"));  // the place of the mark, before the title is painted
    MakeMenus();
    AddAbout();
    auto* const centre = new QWidget(this);
    auto* const column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(MakeHead());
    column->addWidget(MakePages(), 1);
    setCentralWidget(centre);
    PlaceOnScreen();
    binding_.AfterEachAct([this] { setWindowModified(SettingsChanged()); });
}

void MainWindow::PlaceOnScreen() {
    constexpr QSize kComfortable(1280, 780);
    const QRect screenful = screen()->availableGeometry();
    const QRect room = RoomOnScreen(*this);
    resize(kComfortable.boundedTo(room.size()));
    move(screenful.topLeft() + QPoint(room.width() - width(), room.height() - height()) / 2);
}

void MainWindow::MakeMenus() {
    std::map<std::string, QMenu*> menus;
    for (Field* field : Zolv.Fields()) {
        if (field->Kind() != FieldKind::MenuEntry) continue;
        auto& entry = static_cast<MenuEntry&>(*field);
        if (entry.Parent().empty()) {
            QMenu* const menu = menuBar()->addMenu(QString());
            menus[entry.Name()] = menu;
            binding_.Bind(entry, *menu->menuAction());
            continue;
        }
        QMenu* const menu = menus.at(entry.Parent());
        if (&entry == &Zolv.FileExit) menu->addSeparator();
        QAction* const action = menu->addAction(QString());
        binding_.Bind(entry, *action);
        if (&entry == &Zolv.FileExit) recent_ = new RecentFiles(binding_, *menu, *action);
    }
    for (const MenuEntry* entry : {&Zolv.FileOpen, &Zolv.FileSaveAs}) {
        auto* const action = findChild<QAction*>(ToQt(entry->Name()));
        binding_.OnChanged(*entry, [action] {
            if (!action->text().endsWith(u'\u2026')) action->setText(action->text() + u'\u2026');  // a dialog follows
        });
    }
    connect(findChild<QAction*>(ToQt(Zolv.ViewFullScreen.Name())), &QAction::triggered, this,
            &MainWindow::SwitchFullScreen);
}

void MainWindow::SwitchFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

QWidget* MainWindow::MakeHead() {
    auto* const head = new QWidget(this);
    auto* const row = new QHBoxLayout(head);
    row->setContentsMargins(kMargin, kGap, kMargin, kGap);
    row->setSpacing(kGap);
    const auto addPicture = [&](Picture& field, int width) {
        auto* const picture = new PictureView(head);
        picture->setFixedSize(width, 32);
        row->addWidget(picture);
        binding_.Bind(field, *picture);
        binding_.OnChanged(field, [&field, picture] { picture->setVisible(!field.Path().empty()); });
    };
    addPicture(Zolv.TitleImage, 160);
    QLabel* const words = MakeWords(binding_, Zolv.Label_Car, head);
    row->addWidget(words);
    auto* const cars = new QComboBox(head);
    cars->setMinimumWidth(220);
    cars->setMaxVisibleItems(30);
    row->addWidget(cars);
    binding_.Bind(Zolv.Select_Car, *cars, &Zolv.Label_Car);
    row->addStretch(1);
    addPicture(Zolv.TarmaqLogo, 96);
    QLabel* const version = MakeWords(binding_, Zolv.Zolv_version, head);
    version->setForegroundRole(QPalette::PlaceholderText);
    row->addWidget(version);
    return head;
}

QWidget* MainWindow::MakePages() {
    auto* const pages = new QWidget(this);
    auto* const column = new QVBoxLayout(pages);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* const tabs = new QTabBar(pages);
    tabs->setExpanding(false);
    tabs->setDrawBase(true);
    column->addWidget(tabs);
    auto* const stack = new QStackedWidget(pages);
    column->addWidget(stack, 1);

    QWidget* const views[] = {new InfoPageView(binding_, stack), new GearingPageView(binding_, stack),
                              new TyresPageView(binding_, stack), new AeroPageView(binding_, stack)};
    std::vector<Panel*> panels;
    for (int i = 0; i < 4; ++i) {
        stack->addWidget(Scrolled(views[i], stack));
        binding_.Bind(Zolv.Page[i], *views[i]);
        panels.push_back(&Zolv.Page[i]);
    }
    binding_.BindStack(*stack, panels);
    binding_.Bind(Zolv.Select_Page, *tabs);
    auto* const beside = new BesideTabs(*tabs);
    beside->Add(new HeldStrip(binding_, beside));
    beside->Add(new OrderFaultLine(binding_, beside));
    return pages;
}

/// What the corner of the info page says, also where that has no room for it.
void MainWindow::AddAbout() {
    QMenu* const help = findChild<QAction*>(ToQt(Zolv.HelpMenu.Name()))->menu();
    QAction* const about = help->addAction(QString(), this, [] { ShowMessage(Zolv.AboutZolv.Caption()); });
    about->setObjectName(QStringLiteral("HelpAbout"));
    about->setMenuRole(QAction::AboutRole);
    binding_.OnChanged(Zolv.InfoPanel[kInfoAbout],
                       [about] { about->setText(ToQt(Zolv.InfoPanel[kInfoAbout].Caption())); });
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isFullScreen()) {
        SwitchFullScreen();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    binding_.Act([] { Zolv.Close(); });
    event->setAccepted(shell.Ended);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!SettingsFileIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = SettingsFileIn(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    binding_.Input(Zolv.FileOpen, [&] { OpenSettingsFile(FromQt(path)); });
}

}  // namespace zolv
