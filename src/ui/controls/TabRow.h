// A row of tabs standing on a tab area: the tabs side by side at the top of their host, the area below them
// filling the rest of the host and overlapping the tabs by one pixel, so that the active tab opens into its
// page. The windows with tabbed pages place theirs here.
#pragma once

#include <QSize>
#include <span>

class QWidget;
class ucTab;
class ucTabArea;

namespace TabRow {

// Places `tabs` and `area` in their common host and makes the host at least big enough for the row and for
// a page of `page` size inside the area with the given margins. Returns the row's size.
QSize Place(std::span<ucTab* const> tabs, ucTabArea& area, QSize page, QSize pageMargins);

}  // namespace TabRow
