#include "desktop/language_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include "desktop/page_parts.h"
#include "desktop/theme.h"

namespace zolv {

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
    QComboBox* const list = MakeList(form.LanguageList, Body(), form.LanguageLabel[1]);
    list->setMinimumContentsLength(20);
    grid->addWidget(list, 1, 1);
    grid->addWidget(MakeWords(binding, form.LanguageAuthor, Body()), 2, 1);
    grid->setRowStretch(form.LanguageLabel.Size(), 1);
    AddButtons({}, {&form.SaveLanguage});
    Complete();
}

}  // namespace zolv
