#include "letters/reports/frmCreateWordFile.h"

#include "core/Trap.h"
#include "letters/reports/ReportRows.h"
#include "letters/word/Application.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui_frmCreateWordFile.h"

#include <QHeaderView>
#include <algorithm>
#include <array>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

constexpr int Cancel = 1;
constexpr int Ok = 2;

constexpr int checkedColumn = 1;
constexpr int detailColumn = 2;

constexpr Long ticked = -1;
constexpr Long unticked = 0;

using Procedure = void (frmCreateWordFile::*)(const QString& kind);

/// What a mode shows, and what Ok does in it.
struct ModeEntry
{
    QLatin1StringView Mode;
    bool OfProperties;
    Procedure Create;
    QLatin1StringView Kind;
};

constexpr std::array modes{
    ModeEntry{"Selected"_L1, false, &frmCreateWordFile::CreateWordFile, "Selected"_L1},
    ModeEntry{"Found"_L1, false, &frmCreateWordFile::CreateWordFile, "Found"_L1},
    ModeEntry{"HilitedContact"_L1, false, &frmCreateWordFile::CreateWordFile, "Hilited"_L1},
    ModeEntry{"Listed"_L1, false, &frmCreateWordFile::CreateWordFile, "Listed"_L1},
    ModeEntry{"Contact"_L1, false, nullptr, ""_L1},
    ModeEntry{"FoundProperties"_L1, true, &frmCreateWordFile::CreatePropWordFile, "Found"_L1},
    ModeEntry{"HilitedProperty"_L1, true, &frmCreateWordFile::CreatePropWordFile, "Hilited"_L1},
    ModeEntry{"Property"_L1, true, &frmCreateWordFile::CreatePropWordFile, "Properties"_L1},
};

const ModeEntry* EntryOf(const QString& mode)
{
    const auto* entry = std::ranges::find(modes, mode, &ModeEntry::Mode);
    return entry == modes.end() ? nullptr : entry;
}

/// The records that a window shows; none where it is not loaded.
template <typename Window>
std::vector<Long> Shown(std::vector<Long> (Window::*records)() const)
{
    const Window* window = Face<Window>::Get();
    return window == nullptr ? std::vector<Long>() : (window->*records)();
}

std::vector<Long> ContactsOf(const QString& kind)
{
    if (kind == "Found"_L1)
        return Shown(&FoundFace::FoundContacts);
    if (kind == "Hilited"_L1)
        return Shown(&FoundFace::HighlightedContacts);
    if (kind == "Listed"_L1)
        return Shown(&ContactListFace::Highlighted);
    return gSelected.Ids();
}

std::vector<Long> PropertiesOf(const QString& kind)
{
    if (kind == "Found"_L1)
        return Shown(&FoundFace::FoundProperties);
    if (kind == "Hilited"_L1)
        return Shown(&FoundFace::HighlightedProperties);
    return Shown(&PropertyListFace::Highlighted);
}

using Owners = std::unordered_map<Long, std::shared_ptr<Contact>>;

/// What LocatePropertyOwner answers for every property, by one walk over the contacts instead of one for each.
Owners PropertyOwners()
{
    Owners owners;
    gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
        if (!contact)
            return;
        contact->Properties.ForEach([&](Long id, const std::shared_ptr<PropDetail>& property) {
            if (property)
                owners.try_emplace(id, contact);
        });
    });
    return owners;
}

/// The property in its owner's hands, where its latest state is.
const PropDetail& PropertyAt(Long id, const Owners& owners)
{
    const auto owner = owners.find(id);
    if (owner == owners.end())
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    return **owner->second->Properties.Find(id);
}

template <typename Record>
void WriteRecord(Word::Selection& selection, const Record& record, const std::vector<ReportRow<Record>>& rows,
                 const std::vector<std::size_t>& tickedRows)
{
    for (const std::size_t position : tickedRows) {
        const ReportRow<Record>& row = rows.at(position);
        selection.Font.Bold = true;
        selection.TypeText(row.Detail);
        selection.TypeText(u": "_s);
        selection.Font.Bold = false;
        selection.TypeText(row.Value ? row.Value(record) : QString());
        selection.TypeParagraph();
    }
    selection.TypeParagraph();
}

} // namespace

frmCreateWordFile::frmCreateWordFile()
    : Form(u"frmCreateWordFile"_s, Qt::Dialog), m_ui(std::make_unique<Ui::frmCreateWordFile>())
{
    m_ui->setupUi(this);
    Grid* grid = m_ui->Grid1;
    grid->SetMultiSelect(false);
    grid->horizontalHeader()->setStretchLastSection(true);
    connect(grid, &Grid::MouseUp, this, [this, grid](Qt::MouseButton button, QPoint position) {
        const bool onRow = grid->indexAt(grid->viewport()->mapFromGlobal(position)).isValid();
        if (button == Qt::LeftButton && onRow)
            Grid1_MouseUp();
    });
    connect(grid, &Grid::KeyPress, this, [this](int keyAscii) {
        if (keyAscii == u' ')
            Grid1_MouseUp();
    });
    connect(m_ui->lblHeader, &CaptionLabel::MouseUp, this,
            [this] { AskForCaption(*m_ui->lblHeader, u"Header Text:"_s); });
    connect(m_ui->lblFooter, &CaptionLabel::MouseUp, this,
            [this] { AskForCaption(*m_ui->lblFooter, u"Footer Text:"_s); });
    LoadBitMaps();
    CenterForm(*this);
}

frmCreateWordFile::~frmCreateWordFile() = default;

void frmCreateWordFile::LoadBitMaps()
{
    m_buttons = new HoverButtonArray(*this, {{Cancel, u"Cancel"_s, u"Cancel"_s}, {Ok, u"Ok"_s, u"Ok"_s}});
    connect(m_buttons, &HoverButtonArray::Click, this, &frmCreateWordFile::cmdButton_Click);
}

void frmCreateWordFile::Form_Activate()
{
    if (m_ui->Grid1->Rows() == 0)
        LoadGrid();
}

void frmCreateWordFile::LoadGrid()
{
    Trap(u"frmCreateWordFile LoadGrid Error #"_s, Icon::Critical, [this] {
        const ModeEntry* entry = EntryOf(Mode);
        const bool ofProperties = entry != nullptr && entry->OfProperties;
        Grid& grid = *m_ui->Grid1;
        grid.ClearWithColumns();
        grid.AddColumn({.Key = u"Checked"_s, .Width = 26});
        grid.AddColumn({.Key = u"Detail"_s, .Header = u"Detail"_s, .Width = ofProperties ? 137 : 97});
        const auto addRow = [&grid](const QString& detail) {
            const int row = grid.AddRow(ticked);
            grid.SetCellIcon(row, checkedColumn, u"checked"_s);
            grid.SetCellText(row, detailColumn, detail);
        };
        if (ofProperties)
            std::ranges::for_each(PropertyReport(), addRow, &ReportRow<PropDetail>::Detail);
        else
            std::ranges::for_each(ContactReport(), addRow, &ReportRow<Contact>::Detail);
        const QString caption = ofProperties ? u"Property Information"_s : u"Contact Information"_s;
        m_ui->lblHeader->setText(caption);
        m_ui->lblFooter->setText(caption);
        grid.SetSelectedRow(1);
        grid.setFocus();
    });
}

void frmCreateWordFile::Grid1_MouseUp()
{
    Grid& grid = *m_ui->Grid1;
    const int row = grid.SelectedRow();
    if (row == 0)
        return;
    const bool tick = grid.RowItemData(row) != ticked;
    grid.SetCellIcon(row, checkedColumn, tick ? u"checked"_s : QString());
    grid.SetRowItemData(row, tick ? ticked : unticked);
}

void frmCreateWordFile::AskForCaption(CaptionLabel& label, const QString& prompt)
{
    // A cancel answers as an empty text does, which is meant: the document then has none.
    label.setText(AskFor(prompt));
    label.RemoveHighlight();
}

void frmCreateWordFile::cmdButton_Click(int index)
{
    Trap(u"frmCreateWorFile cmdButton_Click Error #"_s, Icon::Critical, [this, index] {
        if (index == Cancel) {
            Unload();
            return;
        }
        const ModeEntry* entry = EntryOf(Mode);
        if (index == Ok && entry != nullptr && entry->Create != nullptr)
            (this->*entry->Create)(QString(entry->Kind));
    });
}

std::vector<std::size_t> frmCreateWordFile::TickedRows() const
{
    const Grid& grid = *m_ui->Grid1;
    std::vector<std::size_t> rows;
    for (int row = 1; row <= grid.Rows(); ++row) {
        if (grid.RowVisible(row) && grid.RowItemData(row) == ticked)
            rows.push_back(static_cast<std::size_t>(row) - 1);
    }
    return rows;
}

template <typename Records, typename Write>
void frmCreateWordFile::CreateFile(const Records& gather, const Write& write)
{
    const HourGlass hourGlass;
    // Visible from the start: of a report that fails the person gets to see how far it came.
    Word::Application word;
    Word::Document& document = word.Documents().Add();
    word.Visible = true;
    const std::vector<Long> records = gather();
    constexpr int primary = 1;
    Word::Section& section = document.Sections(1);
    section.Headers(primary).Range().SetText(m_ui->lblHeader->text());
    section.Footers(primary).Range().SetText(m_ui->lblFooter->text());
    const std::vector<std::size_t> rows = TickedRows();
    for (const Long id : records)
        write(word.Selection(), id, rows);
    word.Release();
}

void frmCreateWordFile::CreateWordFile(const QString& kind)
{
    Trap(u"frmCreateWordFile CreateWordFile Error #"_s, Icon::Critical, [&] {
        CreateFile([&] { return ContactsOf(kind); },
                   [](Word::Selection& selection, Long id, const auto& rows) {
                       WriteRecord(selection, *ContactAt(id), ContactReport(), rows);
                   });
    });
}

void frmCreateWordFile::CreatePropWordFile(const QString& kind)
{
    Trap(u"frmCreateWordFile CreatePropWordFile Error #"_s, Icon::Critical, [&] {
        const Owners owners = PropertyOwners();
        CreateFile([&] { return PropertiesOf(kind); },
                   [&owners](Word::Selection& selection, Long id, const auto& rows) {
                       WriteRecord(selection, PropertyAt(id, owners), PropertyReport(), rows);
                   });
    });
}
