#include "desktop/preset_list.h"

#include <QSignalBlocker>
#include <algorithm>

#include "desktop/binding.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "fields/label_names.h"

namespace zolv {

PresetList::PresetList(Binding& binding, QWidget* parent) : QListWidget(parent), binding_(binding) {
    setObjectName(ToQt(CustomPresets.EditName.Name()));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentRowChanged, this, &PresetList::Pick);
    for (const Field* field :
         {static_cast<Field*>(&CustomPresets.EditName), static_cast<Field*>(&CustomPresets.Frame_Add),
          static_cast<Field*>(&CustomPresets.CUPLabel[kCupEditName])}) {
        binding.OnChanged(*field, [this] { Refresh(); });
    }
}

void PresetList::Refresh() {
    const int row = std::max(0, currentRow());
    {
        const QSignalBlocker quiet(this);
        clear();
        addItem(PlainCaption(CustomPresets.Frame_Add.Caption()));
        for (const std::string& name : CustomPresets.EditName.Rows()) addItem(ToQt(name));
        setCurrentRow(std::min(row, count() - 1));
    }
    setAccessibleName(PlainCaption(CustomPresets.CUPLabel[kCupEditName].Caption()));
    FitRows();
}

/// Rows are as high as those of the form, and wide enough for the first one.
void PresetList::FitRows() {
    constexpr int kNarrowest = 180;
    constexpr int kWidest = 300;
    constexpr int kFrameAndMargins = 20;
    for (int row = 0; row < count(); ++row) item(row)->setSizeHint({0, fontMetrics().height() + kGap});
    setFixedWidth(std::clamp(fontMetrics().horizontalAdvance(item(0)->text()) + kFrameAndMargins, kNarrowest, kWidest));
}

void PresetList::Pick(int row) {
    if (row > 0) binding_.Act([row] { CustomPresets.EditName.Pick(row - 1); });
}

}  // namespace zolv
