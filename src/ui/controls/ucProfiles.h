// The list of profiles that the profile windows share: a report-style list with the columns "Profile" (the
// caption) and "Description", one row per profile, keyed by the profile's name. A click on a column's
// header sorts by it; until then the rows keep the collection's order.
#pragma once

#include <QWidget>
#include <string>

class Profile;
class QTreeWidget;

class ucProfiles : public QWidget {
    Q_OBJECT

public:
    explicit ucProfiles(QWidget* parent = nullptr);

    void InitControl();

    // Lists every profile of the application's collection, or only the changed ones.
    void FillProfileList(bool blnOnlyModifiedProfiles);

    // The profile of the selected row (the first selected one in list order), or nullptr when no row is
    // selected.
    Profile* SelectedProfile() const;

    // Single selection, or multiple selection where a click or Space adds or removes a row.
    void SetMultiSelect(bool blnMultiSelect);

    // The names of the selected rows in list order, joined by ";"; empty when none is selected.
    std::string GetSelectedItems() const;

    void SelectAllProfiles();

    // Selects the row of the profile `name` (any case), or the first row when there is none, and makes
    // it the current row.
    void SelectProfile(const std::string& name);

signals:
    void SelectionChanged();
    // A row was double-clicked.
    void RowDoubleClicked();

private:
    void SortByColumn(int column, Qt::SortOrder order);

    QTreeWidget* ListView1;
};
