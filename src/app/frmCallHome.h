#pragma once

#include "app/FeedbackRequest.h"
#include "ui/widgets/Form.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;

/// The wizard of the feedback: who writes, what they have to say, and at last what will be sent; nothing is sent
/// before. What was typed outlives the window until it has been sent.
class frmCallHome : public Form
{
    Q_OBJECT

public:
    /// Sends to `address`, and waits for the answer at most so long.
    explicit frmCallHome(const QUrl& address, int mostMilliseconds = 20'000);
    ~frmCallHome() override;

protected:
    void Form_Activate() override;
    void EscapePressed() override;

private:
    [[nodiscard]] QWidget* MakeWhoPage();
    [[nodiscard]] QWidget* MakeCommentsPage();
    [[nodiscard]] QWidget* MakeReviewPage();
    [[nodiscard]] QWidget* MakeButtons();
    [[nodiscard]] Feedback Typed() const;
    [[nodiscard]] bool MayLeave(int page) const;
    void GoTo(int page);
    void cmdNext_Click();
    void Send();
    void Answer(const QString& refusal);
    void ShowSending(bool sending);

    QUrl m_address;
    FeedbackRequest m_request;
    QStackedWidget* m_pages;
    QLineEdit* m_name;
    QLineEdit* m_email;
    QPlainTextEdit* m_comments;
    QPlainTextEdit* m_review;
    QLabel* m_status;
    QPushButton* m_cancel;
    QPushButton* m_back;
    QPushButton* m_next;
};

/// Shows the feedback window, modal.
void ShowCallHome();
