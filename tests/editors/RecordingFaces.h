#pragma once

#include "model/faces.h"

#include <QStringList>

// Stand-ins for the windows that the editors call, which write down what they were asked. The store and the editors are
// real.

/// GridList of frmList: the IDs of its rows, and which row is selected.
class RecordingList final : public ContactListFace
{
public:
    std::vector<Long> Data;
    int Selected = 0;
    QStringList Log;
    bool Unloaded = false;

    [[nodiscard]] int Rows() const override { return static_cast<int>(Data.size()); }
    [[nodiscard]] int SelectedRow() const override { return Selected; }
    [[nodiscard]] std::vector<Long> Highlighted() const override { return {}; }
    void AddRow() override
    {
        Data.push_back(0);
        Log << QStringLiteral("AddRow");
    }
    void RemoveLastRow() override
    {
        Data.pop_back();
        Log << QStringLiteral("RemoveLastRow");
    }
    void TakeNewRowAway() override
    {
        Data.pop_back();
        Log << QStringLiteral("TakeNewRowAway");
    }
    void SelectLastRow() override
    {
        Selected = Rows();
        Log << QStringLiteral("SelectLastRow");
    }
    void SelectContact(Long) override {}
    void RemoveContacts(const std::vector<Long>&) override {}
    void UnSelectAll() override { Log << QStringLiteral("UnSelectAll"); }
    void UpdateContactGridCols() override { Log << QStringLiteral("UpdateContactGridCols"); }
    void SetSelectedRowData(Long contactID) override
    {
        if (Selected > 0 && Selected <= Rows())
            Data[static_cast<size_t>(Selected) - 1] = contactID;
    }
    void ShowPropertyCount(Long, int) override {}
    void ShowAlertIcon() override {}
    void FocusFirstName() override {}
    void ShowChecked(Long, bool) override {}
    void FillContactList() override {}
    void UnloadList() override { Unloaded = true; }

private:
    Face<ContactListFace>::Registration m_face{*this};
};

/// The tree with one subcategory selected.
class RecordingTree final : public TreeFace
{
public:
    QString Key;
    QString ParentKey;
    int CountsShown = 0;

    RecordingTree(QString key, QString parentKey) : Key(std::move(key)), ParentKey(std::move(parentKey)) {}
    [[nodiscard]] int NodeCount() const override { return 2; }
    [[nodiscard]] QString SelectedKey() const override { return Key; }
    [[nodiscard]] QString SelectedParentKey() const override { return ParentKey; }
    [[nodiscard]] QString SelectedText() const override { return {}; }
    bool ItsASub() override { return true; }
    bool FindInTree(const QString&) override { return true; }
    void AddSubNode(Long, const QString&, Long) override {}
    void AddRootNode(const QString&, Long) override {}
    void trvCategories_DblClick() override {}
    void ShowSubContactCount() override { ++CountsShown; }

private:
    Face<TreeFace>::Registration m_face{*this};
};

/// GridFound.
class RecordingFound final : public FoundFace
{
public:
    std::vector<Long> Redrawn;

    [[nodiscard]] std::vector<Long> FoundContacts() const override { return {}; }
    [[nodiscard]] std::vector<Long> HighlightedContacts() const override { return {}; }
    void MarkSelected(Long, bool) override {}
    void RedrawContact(const Contact& contact) override;
    void RemoveContacts(const std::vector<Long>&) override {}
    [[nodiscard]] std::vector<Long> FoundProperties() const override { return {}; }
    [[nodiscard]] std::vector<Long> HighlightedProperties() const override { return {}; }
    void RemoveProperties(const std::vector<Long>&) override {}
    void ShowHowManyFound() override {}

private:
    Face<FoundFace>::Registration m_face{*this};
};
