#pragma once

#include "letters/LetterLibrary.h"
#include "model/faces.h"

#include <QHash>
#include <QWidget>
#include <memory>

class HoverButtonArray;
class PictureBox;
class QLabel;
class QListWidget;
namespace Ui {
class FormLetters;
}

/// The page "Letters and Labels" of the main window: the library of form letters with its editor, and the way to the
/// merges.
///
///   lstForms     Letter     lstContactFields
///   picForms                lstPropFields
///   Merge  Labels  lblLabelType
///
/// Browsing, the list is worked and the letter only looked at; editing, the other way round.
class FormLetters : public QWidget, public LettersFace
{
    Q_OBJECT

public:
    /// The six pictures, and what each does.
    enum class Action
    {
        New = 1,
        Modify,
        Save,
        Cancel,
        Delete,
        Rename
    };

    FormLetters();
    ~FormLetters() override;

    /// The state machine of the page.
    void FormStart(Action action);
    /// Works the buttons of the page: 7 Merge, 8 Labels; any other index does nothing.
    void ProcessCmdButtons(int index);

    // LettersFace
    /// A letter that is being written stays on the screen; it becomes a new one where its own is gone.
    void LoadFormLetters() override;
    void ShowLabelType(const QString& labelNumber) override;

protected:
    /// Brings a label's own caption back, and lets a letter that is only looked at be scrolled.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void SetUpPictures();
    void SetUpPicker(QListWidget& list, PictureBox& picture, QLabel& label, void (FormLetters::*insert)());
    void SetUpButtons();
    void KeepLetterReadable();

    void EnableFormBtn(Action action);
    void DisableFormBtn(Action action);
    void EnableInsert(bool enabled);
    void BeginEditing(Action action);
    void EndEditing(bool showStartText);
    /// Goes on with the same letter in a list that was filled anew.
    void KeepEditing();
    /// The selected letter, or the start text, and the pictures that need a letter.
    void ShowWhatIsThere();

    [[nodiscard]] bool SaveForm();
    void DeleteForm();
    void RenameForm();
    void InsertContactFieldToLetter();
    void InsertPropFieldToLetter();
    void InsertMarker(const QString& column);

    void lstForms_Click();
    void SelectForm(int row);
    void AddForm(const LetterLibrary::Entry& letter);
    [[nodiscard]] Long SelectedID() const;
    [[nodiscard]] QString SelectedName() const;
    [[nodiscard]] bool HasSelection() const;

    /// What the letter holds, a line break as CR LF.
    [[nodiscard]] QString LetterText() const;
    void ShowLetter(const QString& text);

    void cmdbutton_MouseDown(int index);
    void cmdbutton_Click(int index);
    void Merge();
    void Labels();

    Face<LettersFace>::Registration m_face{*this};
    std::unique_ptr<Ui::FormLetters> m_ui;
    HoverButtonArray* m_buttons = nullptr;
    LetterLibrary m_library;
    QHash<const QLabel*, QString> m_captions; ///< of the labels that say for a while what a picture does
    Action m_editMode = Action::New;          ///< New or Modify
    Long m_modifiedID = 0;                    ///< of the letter that is being modified
};
