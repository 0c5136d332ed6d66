#include "ui/controls/TabRow.h"

#include <algorithm>

#include "ui/controls/ucTab.h"
#include "ui/controls/ucTabArea.h"

namespace TabRow {

QSize Place(std::span<ucTab* const> tabs, ucTabArea& area, QSize page, QSize pageMargins) {
    QWidget* host = area.parentWidget();
    int width = 0;
    int height = 0;
    for (ucTab* tab : tabs) {
        tab->move(width, 0);
        width += tab->width();
        height = std::max(height, tab->height());
    }
    host->setMinimumSize(std::max(width, page.width() + pageMargins.width()),
                         height - 1 + page.height() + pageMargins.height());
    area.setGeometry(0, height - 1, host->width(), host->height() - height + 1);
    for (ucTab* tab : tabs)
        tab->raise();
    return QSize(width, height);
}

}  // namespace TabRow
