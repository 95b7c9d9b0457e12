#include "support/ScriptedUser.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Stands for whatever a box says.
const QString anyText;

void Fail(const QString& why)
{
    QTest::qFail(qUtf8Printable(why), __FILE__, __LINE__);
}

bool Has(Buttons buttons, Answer answer)
{
    switch (answer) {
    case Answer::Ok:
        return buttons == Buttons::Ok;
    case Answer::Cancel:
        return buttons == Buttons::YesNoCancel;
    case Answer::Yes:
    case Answer::No:
        return buttons != Buttons::Ok;
    }
    return false;
}

/// The answer that does least.
Answer Harmless(Buttons buttons)
{
    return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

} // namespace

ScriptedUser::ScriptedUser()
{
    User::Install(this);
}

ScriptedUser::~ScriptedUser()
{
    Done();
    User::Install(nullptr);
}

void ScriptedUser::Expect(const QString& title, const QString& text, Answer answer)
{
    m_expected.append({false, title, text, answer, {}});
}

void ScriptedUser::ExpectReport(const QString& title)
{
    m_expected.append({false, title, anyText, Answer::Ok, {}});
}

void ScriptedUser::ExpectAskFor(const QString& caption, const QString& reply)
{
    m_expected.append({true, caption, {}, Answer::Ok, reply});
}

void ScriptedUser::Done()
{
    const QList<Expected> left = std::exchange(m_expected, {});
    for (const Expected& expected : left)
        Fail(u"Expected, but never came: \"%1\" \"%2\""_s.arg(expected.Title, expected.Text));
}

void ScriptedUser::Forget()
{
    m_boxes.clear();
    m_statuses.clear();
    m_statusCalls = 0;
}

Answer ScriptedUser::MsgBox(const QString& text, Buttons buttons, Icon icon, const QString& title)
{
    Answer answer = Harmless(buttons);
    if (m_expected.isEmpty()) {
        Fail(u"A box that was not expected: \"%1\" \"%2\""_s.arg(title, text));
    } else {
        const Expected expected = m_expected.takeFirst();
        if (expected.AsksForText || expected.Title != title || (expected.Text != text && !expected.Text.isNull()))
            Fail(u"Expected \"%1\" \"%2\", but \"%3\" \"%4\" came"_s.arg(expected.Title, expected.Text, title, text));
        else if (!Has(buttons, expected.Button))
            Fail(u"\"%1\" has no such button"_s.arg(text));
        else
            answer = expected.Button;
    }
    m_boxes.append({text, buttons, icon, title, answer});
    return answer;
}

QString ScriptedUser::AskFor(const QString& caption, int maxLength)
{
    m_lastMaxLength = maxLength;
    if (m_expected.isEmpty()) {
        Fail(u"A question that was not expected: \"%1\""_s.arg(caption));
        return {};
    }
    const Expected expected = m_expected.takeFirst();
    if (!expected.AsksForText || expected.Title != caption) {
        Fail(u"Expected \"%1\", but the question \"%2\" came"_s.arg(expected.Title, caption));
        return {};
    }
    return expected.Reply;
}

void ScriptedUser::ShoWait(const QString& message)
{
    m_statuses.append(message);
    ++m_statusCalls;
}

void ScriptedUser::ShoWait()
{
    ++m_statusCalls;
}

void ScriptedUser::HourGlass(bool on)
{
    m_hourGlasses += on ? 1 : -1;
    if (m_hourGlasses < 0)
        Fail(u"An hourglass was taken away that had not been shown"_s);
}
