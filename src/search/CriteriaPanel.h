#pragma once

#include "search/SearchWalk.h"

#include <QWidget>
#include <optional>

class Grid;
class HoverButtonArray;
class QBoxLayout;
class QCheckBox;
class QRadioButton;

/// What is searched for: the mode, the criteria grid and the buttons below it. The text in the grid's second column is
/// the criterion; there is no other record of it.
///
///   (o) Contacts ( ) Properties          ( ) And (o) Or
///   Search Criteria                      [ ] Case sensitive search
///   GridSearch                           Clear, Search, ClearAll
class CriteriaPanel : public QWidget
{
    Q_OBJECT

public:
    CriteriaPanel();

    [[nodiscard]] SearchMode Mode() const;
    /// Chooses the option; the rows stay until LoadSearchCols.
    void SetMode(SearchMode mode);
    /// The filled rows, and how they go together.
    [[nodiscard]] SearchCriteria Criteria() const;
    [[nodiscard]] bool HasRows() const;

    /// Empties the grid and gives it the rows of the mode that is on: all criteria are gone.
    void LoadSearchCols();
    /// "Clear": empties the criterion of the selected row.
    void ClearRow();
    /// "ClearAll".
    void ClearAllRows();

Q_SIGNALS:
    void ModeChanged();
    /// A button, by its index: 1 Clear, 2 Search, 3 ClearAll.
    void ButtonClick(int index);
    /// A criterion is about to change: what was found is no longer its answer.
    void CriterionTouched();

private:
    QRadioButton* AddOption(QBoxLayout& line, const QString& name, const QString& caption);
    /// Of these options one is chosen.
    void Group(std::initializer_list<QRadioButton*> options);
    void BuildLayout();
    void LoadContactSearchCols();
    void LoadPropSearchCols();
    void FillRows(const QString& header);
    void GridSearch_KeyPress(int keyAscii);
    void SetCriteria(int row, std::optional<QChar> key);
    static void Ask(SearchMode mode, int row, std::optional<QChar> key);

    QRadioButton* m_contacts = nullptr;
    QRadioButton* m_properties = nullptr;
    QRadioButton* m_and = nullptr;
    QRadioButton* m_or = nullptr;
    QCheckBox* m_chkCase;
    Grid* m_grid;
};
