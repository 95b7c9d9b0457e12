#pragma once

#include "model/faces.h"

#include <QWidget>

class CriteriaPanel;
class FoundList;
class frmMain;

/// The tab "Search": the criteria above, what was found below.
///
///   CriteriaPanel  ButtonClick -> ProcessCmdButtons -> StartSearch, StartPropSearch
///   FoundList      <- the walks of SearchWalk.h
class SearchPage : public QWidget, public SearchFace
{
    Q_OBJECT

public:
    explicit SearchPage(frmMain& window);

    // SearchFace
    [[nodiscard]] bool HasCriteriaRows() const override;
    void optSearch_Click() override;
    void SearchContactsAnew() override;

private:
    void ShowMode() const;
    void ProcessCmdButtons(int index);
    void StartSearch();
    void StartPropSearch();

    Face<SearchFace>::Registration m_face{*this};
    CriteriaPanel* m_criteria;
    FoundList* m_found;
};
