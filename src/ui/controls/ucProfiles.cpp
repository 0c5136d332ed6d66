#include "ui/controls/ucProfiles.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "base/mString.h"
#include "error/mError.h"
#include "ui/QtText.h"

namespace {

// The row's key, the profile's name, rides along with the caption.
constexpr int kKeyRole = Qt::UserRole;

}  // namespace

ucProfiles::ucProfiles(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("ucProfiles"));
    ListView1 = new QTreeWidget(this);
    ListView1->setObjectName(QStringLiteral("ListView1"));
    ListView1->setRootIsDecorated(false);
    ListView1->setUniformRowHeights(true);
    ListView1->setAllColumnsShowFocus(true);
    ListView1->header()->setSectionsClickable(true);
    ListView1->header()->setStretchLastSection(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(ListView1);
    setFocusProxy(ListView1);
    connect(ListView1->header(), &QHeaderView::sortIndicatorChanged, this, &ucProfiles::SortByColumn);
    connect(ListView1, &QTreeWidget::itemSelectionChanged, this, &ucProfiles::SelectionChanged);
    connect(ListView1, &QTreeWidget::itemDoubleClicked, this, &ucProfiles::RowDoubleClicked);
    InitControl();
}

void ucProfiles::InitControl() try { SetMultiSelect(false); } catch (...) {
    mError::PassOn("ucProfiles.InitControl");
}

void ucProfiles::FillProfileList(bool blnOnlyModifiedProfiles) try {
    ListView1->clear();
    ListView1->setHeaderLabels({QStringLiteral("Profile"), QStringLiteral("Description")});
    ListView1->header()->setSortIndicatorShown(false);
    ListView1->header()->setSortIndicator(-1, Qt::AscendingOrder);
    for (const Profile& profile : App().Profiles()) {
        if (blnOnlyModifiedProfiles && !profile.DataChanged())
            continue;
        auto* row = new QTreeWidgetItem(
            ListView1, {QtText::ToQt(profile.ProfileCaption()), QtText::ToQt(profile.ProfileDescription())});
        row->setData(0, kKeyRole, QtText::ToQt(profile.ProfileName()));
    }
    ListView1->resizeColumnToContents(0);
    if (ListView1->topLevelItemCount() > 0)
        ListView1->setCurrentItem(ListView1->topLevelItem(0), 0, QItemSelectionModel::NoUpdate);
} catch (...) {
    mError::PassOn("ucProfiles.FillProfileList");
}

Profile* ucProfiles::SelectedProfile() const try {
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* row = ListView1->topLevelItem(i);
        if (row->isSelected())
            return &App().Profiles().Item(QtText::FromQt(row->data(0, kKeyRole).toString()));
    }
    return nullptr;
} catch (...) {
    mError::PassOn("ucProfiles.SelectedProfile");
}

void ucProfiles::SetMultiSelect(bool blnMultiSelect) try {
    ListView1->setSelectionMode(blnMultiSelect ? QAbstractItemView::MultiSelection
                                               : QAbstractItemView::SingleSelection);
} catch (...) {
    mError::PassOn("ucProfiles.Let MultiSelect");
}

std::string ucProfiles::GetSelectedItems() const try {
    std::string names;
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* row = ListView1->topLevelItem(i);
        if (!row->isSelected())
            continue;
        if (!names.empty())
            names += ';';
        names += QtText::FromQt(row->data(0, kKeyRole).toString());
    }
    return names;
} catch (...) {
    mError::PassOn("ucProfiles.GetSelectedItems");
}

void ucProfiles::SelectAllProfiles() try {
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i)
        ListView1->topLevelItem(i)->setSelected(true);
} catch (...) {
    mError::PassOn("ucProfiles.SelectAllProfiles");
}

void ucProfiles::SelectProfile(const std::string& name) try {
    QTreeWidgetItem* chosen = ListView1->topLevelItem(0);
    for (int i = 0; i < ListView1->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = ListView1->topLevelItem(i);
        if (mString::EqualsNoCase(QtText::FromQt(row->data(0, kKeyRole).toString()), name)) {
            chosen = row;
            break;
        }
    }
    if (chosen != nullptr)
        ListView1->setCurrentItem(chosen);
} catch (...) {
    mError::PassOn("ucProfiles.SelectProfile");
}

// The header turns the order round at a second click on the same column.
void ucProfiles::SortByColumn(int column, Qt::SortOrder order) try {
    if (column < 0)
        return;  // the list was refilled in the collection's order
    ListView1->sortItems(column, order);
    ListView1->header()->setSortIndicatorShown(true);
} catch (...) {
    mError::ShowError("ucProfiles.ListView1_ColumnClick");
}
