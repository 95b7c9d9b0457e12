#pragma once

#include "core/User.h"

#include <QList>
#include <QStringList>

/// A person who answers by script and writes down all that is said. Installs itself for its lifetime.
/// A box that was not expected, an answer of a button that the box lacks, and an expectation left unused fail the test.
class ScriptedUser final : public User
{
public:
    struct Box
    {
        QString Text;
        Buttons Shown = Buttons::Ok;
        Icon Picture = Icon::None;
        QString Title;
        Answer Given = Answer::Ok;
    };

    ScriptedUser();
    ~ScriptedUser() override;

    /// The next box must bear this title and text, and gets this answer.
    void Expect(const QString& title, const QString& text, Answer answer = Answer::Ok);
    /// The next box must be an error report under this title; its words are the engine's own.
    void ExpectReport(const QString& title);
    /// The next question for a line of text must bear this caption, and gets this reply.
    void ExpectAskFor(const QString& caption, const QString& reply);
    /// Fails the test when something expected has not come; the destructor does so too.
    void Done();

    [[nodiscard]] const QList<Box>& Boxes() const { return m_boxes; }
    [[nodiscard]] Box LastBox() const { return m_boxes.value(m_boxes.size() - 1); }
    /// The last message in the status bar.
    [[nodiscard]] QString LastStatus() const { return m_statuses.value(m_statuses.size() - 1); }
    [[nodiscard]] const QStringList& Statuses() const { return m_statuses; }
    /// How often the status bar was brought up to date, with or without a message.
    [[nodiscard]] int StatusCalls() const { return m_statusCalls; }
    /// The limit of the last line of text that was asked for, 0 for none.
    [[nodiscard]] int LastMaxLength() const { return m_lastMaxLength; }
    [[nodiscard]] bool HourGlassIsOn() const { return m_hourGlasses > 0; }
    void Forget();

    Answer MsgBox(const QString& text, Buttons buttons, Icon icon, const QString& title) override;
    QString AskFor(const QString& caption, int maxLength) override;
    void ShoWait(const QString& message) override;
    void ShoWait() override;
    void HourGlass(bool on) override;
    void NoHourGlass() override { m_hourGlasses = 0; }

private:
    struct Expected
    {
        bool AsksForText;
        QString Title;
        QString Text;
        Answer Button;
        QString Reply;
    };

    QList<Expected> m_expected;
    QList<Box> m_boxes;
    QStringList m_statuses;
    int m_statusCalls = 0;
    int m_lastMaxLength = 0;
    int m_hourGlasses = 0;
};
