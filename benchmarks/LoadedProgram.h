#pragma once

#include "core/User.h"
#include "Samples.h"

/// Answers every question with yes.
class Consent : public User
{
public:
    Consent() { Install(this); }
    ~Consent() override { Install(nullptr); }
    Answer MsgBox(const QString& text, Buttons buttons, Icon icon, const QString& title) override;
    QString AskFor(const QString&, int) override { return {}; }
    void ShoWait(const QString&) override {}
    void ShoWait() override {}
    void HourGlass(bool) override {}
};

/// The loaded program with every `every`-th contact in one subcategory, which is the current one.
class LoadedProgram
{
public:
    LoadedProgram(int contacts, int every);
    ~LoadedProgram();
    LoadedProgram(const LoadedProgram&) = delete;
    LoadedProgram& operator=(const LoadedProgram&) = delete;

private:
    const Consent m_user;
    const SampleCopy m_copy;
};
