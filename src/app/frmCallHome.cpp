#include "app/frmCallHome.h"

#include "app/FeedbackAddress.h"
#include "core/Trap.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Theme.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// The comments go in the query of an address, and those can't be of any length.
constexpr qsizetype mostCommentSigns = 2000;
constexpr int mostNameSigns = 100;

enum Page
{
    WhoPage,
    CommentsPage,
    ReviewPage
};

/// What was typed and not sent yet.
Feedback& Draft()
{
    static Feedback draft;
    return draft;
}

QLabel* NewHeading(const QString& text)
{
    auto* heading = new QLabel(text);
    heading->setWordWrap(true);
    return heading;
}

/// Tab leaves the text, as it leaves a line.
QPlainTextEdit* NewText(const QString& name, const QString& accessibleName)
{
    auto* text = new QPlainTextEdit;
    text->setObjectName(name);
    text->setAccessibleName(accessibleName);
    text->setTabChangesFocus(true);
    return text;
}

QPushButton* NewButton(const QString& name, const QString& caption)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

QVBoxLayout* NewPage(QWidget& page)
{
    auto* layout = new QVBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::Spacing);
    return layout;
}

} // namespace

frmCallHome::frmCallHome(const QUrl& address, int mostMilliseconds)
    : Form(u"frmCallHome"_s)
    , m_address(address)
    , m_request(mostMilliseconds)
    , m_pages(new QStackedWidget)
    , m_status(new QLabel)
{
    setWindowTitle(u"Contact Pelmar Software"_s);
    m_pages->setObjectName(u"pages"_s);
    m_pages->addWidget(MakeWhoPage());
    m_pages->addWidget(MakeCommentsPage());
    m_pages->addWidget(MakeReviewPage());
    m_status->setObjectName(u"lblStatus"_s);
    m_status->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(Theme::Spacing);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_status);
    layout->addWidget(MakeButtons());
    connect(&m_request, &FeedbackRequest::Answered, this, &frmCallHome::Answer);
    resize(520, 340);
    setMinimumSize(360, 300);
    CenterForm(*this);
    GoTo(WhoPage);
}

frmCallHome::~frmCallHome()
{
    Draft() = Typed();
}

QWidget* frmCallHome::MakeWhoPage()
{
    auto* page = new QWidget;
    QVBoxLayout* layout = NewPage(*page);
    layout->addWidget(
        NewHeading(u"I can send your comments to Pelmar Software. Please tell me who you are, so that they can "
                   "answer you. You may leave both lines empty."_s));
    const auto addLine = [](QFormLayout& form, const QString& name, const QString& label, const QString& text) {
        auto* line = new QLineEdit(text);
        line->setObjectName(name);
        line->setMaxLength(mostNameSigns);
        form.addRow(label, line);
        return line;
    };
    auto* form = new QFormLayout;
    form->setSpacing(Theme::Spacing);
    m_name = addLine(*form, u"txtName"_s, u"&Name:"_s, Draft().Name);
    m_name->setAccessibleName(u"Name"_s);
    m_email = addLine(*form, u"txtEmail"_s, u"&E-mail:"_s, Draft().Email);
    m_email->setAccessibleName(u"E-mail"_s);
    layout->addLayout(form);
    layout->addStretch();
    return page;
}

QWidget* frmCallHome::MakeCommentsPage()
{
    auto* page = new QWidget;
    QVBoxLayout* layout = NewPage(*page);
    layout->addWidget(NewHeading(u"What do you want me to tell them?"_s));
    m_comments = NewText(u"txtComments"_s, u"Comments"_s);
    m_comments->setPlainText(Draft().Comments);
    layout->addWidget(m_comments, 1);
    return page;
}

QWidget* frmCallHome::MakeReviewPage()
{
    auto* page = new QWidget;
    QVBoxLayout* layout = NewPage(*page);
    layout->addWidget(NewHeading(u"This is what I will send, and nothing else:"_s));
    m_review = NewText(u"txtReview"_s, u"What will be sent"_s);
    m_review->setReadOnly(true);
    layout->addWidget(m_review, 1);
    return page;
}

QWidget* frmCallHome::MakeButtons()
{
    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::Spacing);
    m_cancel = NewButton(u"cmdCancel"_s, u"Cancel"_s);
    m_back = NewButton(u"cmdBack"_s, u"&Back"_s);
    m_next = NewButton(u"cmdNext"_s, u"Ne&xt"_s);
    m_next->setDefault(true);
    layout->addWidget(m_cancel);
    layout->addStretch();
    layout->addWidget(m_back);
    layout->addWidget(m_next);
    connect(m_cancel, &QPushButton::clicked, this, &frmCallHome::EscapePressed);
    connect(m_back, &QPushButton::clicked, this, [this] { GoTo(m_pages->currentIndex() - 1); });
    connect(m_next, &QPushButton::clicked, this, &frmCallHome::cmdNext_Click);
    for (const QLineEdit* line : {m_name, m_email})
        connect(line, &QLineEdit::returnPressed, this, &frmCallHome::cmdNext_Click);
    return bar;
}

void frmCallHome::Form_Activate()
{
    if (m_pages->currentIndex() == WhoPage && focusWidget() == nullptr)
        m_name->setFocus();
}

void frmCallHome::EscapePressed()
{
    // While it sends, Cancel gives up the sending and not the window.
    if (m_request.IsSending()) {
        m_request.Stop();
        ShowSending(false);
        m_status->setText(u"I have stopped. I can't say whether your comments have arrived."_s);
        return;
    }
    Unload();
}

Feedback frmCallHome::Typed() const
{
    return {m_name->text(), m_email->text(), m_comments->toPlainText()};
}

bool frmCallHome::MayLeave(int page) const
{
    if (page != CommentsPage)
        return true;
    const QString comments = m_comments->toPlainText();
    if (comments.trimmed().isEmpty()) {
        m_status->setText(u"I have nothing to send yet: please write your comments first."_s);
        return false;
    }
    if (comments.size() > mostCommentSigns) {
        m_status->setText(
            u"I can send at most %1 characters at once, and these are %2. Please make two messages of them."_s.arg(
                QString::number(mostCommentSigns), QString::number(comments.size())));
        return false;
    }
    return true;
}

void frmCallHome::GoTo(int page)
{
    m_status->clear();
    const Feedback typed = Typed();
    m_review->setPlainText(u"Name: %1\nE-mail: %2\n\n%3"_s.arg(typed.Name, typed.Email, typed.Comments));
    m_pages->setCurrentIndex(page);
    m_back->setEnabled(page > WhoPage);
    m_next->setText(page == ReviewPage ? u"&Send"_s : u"Ne&xt"_s);
    QWidget* const first[]{m_name, m_comments, m_next};
    first[page]->setFocus();
}

void frmCallHome::cmdNext_Click()
{
    Trap(u"frmCallHome cmdNext_Click Error #"_s, Icon::Critical, [this] {
        const int page = m_pages->currentIndex();
        if (page == ReviewPage)
            Send();
        else if (MayLeave(page))
            GoTo(page + 1);
    });
}

void frmCallHome::Send()
{
    ShowSending(true);
    m_status->setText(u"I am sending your comments…"_s);
    m_request.Send(m_address, Typed());
}

void frmCallHome::ShowSending(bool sending)
{
    m_back->setEnabled(!sending);
    m_next->setEnabled(!sending);
    if (sending)
        m_cancel->setFocus();
    else
        m_next->setFocus();
}

void frmCallHome::Answer(const QString& refusal)
{
    ShowSending(false);
    if (!refusal.isEmpty()) {
        m_status->setText(refusal + u" Nothing is lost: you can send them again, now or later."_s);
        return;
    }
    m_comments->clear();
    m_status->clear();
    MsgBox(u"I have sent your comments. Thank you for writing."_s, Buttons::Ok, Icon::Information,
           u"Your Comments have been Sent"_s);
    Unload();
}

void ShowCallHome()
{
    frmCallHome form(FeedbackAddress());
    form.ShowModal(Forms::Active());
}
