#include "desktop/language_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMap>
#include <QShortcut>

#include "desktop/page_parts.h"
#include "desktop/theme.h"
#include "fields/label_names.h"

namespace zolv {
namespace {

/// A language as those call it who speak it; one that is not shipped keeps the name of its file.
QString OwnName(const QString& language) {
    static const QMap<QString, QString> kOwnNames{
        {QStringLiteral("French"), QStringLiteral("Français")},  {QStringLiteral("German"), QStringLiteral("Deutsch")},
        {QStringLiteral("Italian"), QStringLiteral("Italiano")}, {QStringLiteral("Japanese"), QStringLiteral("日本語")},
        {QStringLiteral("Polish"), QStringLiteral("Polski")},    {QStringLiteral("Spanish"), QStringLiteral("Español")},
    };
    return kOwnNames.value(language, language);
}

}  // namespace

LanguageWindow::LanguageWindow(Binding& binding, QWidget* parent)
    : SecondaryWindow(binding, LanguageSelection, parent) {
    auto& form = LanguageSelection;
    auto* const grid = new QGridLayout(Body());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kMargin);
    grid->setColumnStretch(1, 1);
    for (int row = 0; row < form.LanguageLabel.Size(); ++row) {
        grid->addWidget(MakeWords(binding, form.LanguageLabel[row], Body()), row, 0);
    }
    grid->addWidget(MakeWords(binding, form.LanguageNow, Body()), 0, 1);
    QComboBox* const list = MakeList(form.LanguageList, Body(), form.LanguageLabel[kLanguageSelect]);
    list->setMinimumContentsLength(20);
    binding.OnChanged(form.LanguageList, [list] {
        for (int row = 0; row < list->count(); ++row) list->setItemText(row, OwnName(list->itemText(row)));
    });
    grid->addWidget(list, 1, 1);
    grid->addWidget(MakeWords(binding, form.LanguageAuthor, Body()), 2, 1);
    grid->setRowStretch(form.LanguageLabel.Size(), 1);
    AddButtons({}, {&form.SaveLanguage});
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, [this] {
            Fields().Input(LanguageSelection.SaveLanguage, [] { LanguageSelection.SaveLanguage.Click(); });
        });
    }
    Complete();
}

}  // namespace zolv
