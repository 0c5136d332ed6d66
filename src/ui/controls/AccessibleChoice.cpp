#include "ui/controls/AccessibleChoice.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QListWidget>
#include <functional>

namespace AccessibleChoice {
namespace {

// Calls `take` with the row that is selected in `view` but is not its current row. A click and the keys
// make a row current before they select it, so only a choice that selects alone gets here.
void OnSelectionAlone(QAbstractItemView& view, std::function<void(int)> take) {
    QObject::connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, &view,
                     [&view, take = std::move(take)] {
                         const QModelIndexList selected = view.selectionModel()->selectedIndexes();
                         if (!selected.isEmpty() && selected.front().row() != view.currentIndex().row())
                             take(selected.front().row());
                     });
}

}  // namespace

void Follow(QListWidget& list) {
    OnSelectionAlone(list, [&list](int row) { list.setCurrentRow(row); });
}

void Follow(QComboBox& list) {
    OnSelectionAlone(*list.view(), [&list](int row) {
        list.setCurrentIndex(row);
        list.hidePopup();
    });
}

}  // namespace AccessibleChoice
