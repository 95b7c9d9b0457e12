#include "core/User.h"

using namespace Qt::StringLiterals;

QString gReturnValue;

namespace {

class SilentUser final : public User
{
public:
    Answer MsgBox(const QString&, Buttons buttons, Icon, const QString&) override
    {
        switch (buttons) {
        case Buttons::Ok:
            return Answer::Ok;
        case Buttons::YesNo:
            return Answer::No;
        case Buttons::YesNoCancel:
            return Answer::Cancel;
        }
        return Answer::Ok;
    }
    QString AskFor(const QString&, int) override { return {}; }
    void ShoWait(const QString&) override {}
    void ShoWait() override {}
    void HourGlass(bool) override {}
};

User* installed = nullptr;

} // namespace

User& User::Current()
{
    static SilentUser silent;
    return installed != nullptr ? *installed : silent;
}

void User::Install(User* user)
{
    installed = user;
}

QString AskFor(const QString& caption, int maxLength)
{
    gReturnValue = User::Current().AskFor(caption, maxLength);
    return gReturnValue;
}

bool Confirmed(const QString& question)
{
    return MsgBox(question, Buttons::YesNo, Icon::Question, u"Please Confirm Before I Proceed"_s) == Answer::Yes;
}
