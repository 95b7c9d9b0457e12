#include "search/frmCurrency.h"

#include "core/Format.h"
#include "core/Trap.h"
#include "search/EntryFilter.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

EntryRules AmountRules()
{
    return {.Accepts = [](int keyAscii, QStringView) { return isCurrency(keyAscii); }, .Pasted = u"0123456789."_s};
}

QString AmountText(const QLineEdit& entry)
{
    return Format(entry.text(), u"$##,###,##0.00");
}

} // namespace

frmCurrency::frmCurrency()
    : RangeForm({.Name = u"frmCurrency"_s,
                 .Conditions = {u"Equal To"_s, u"Less Than"_s, u"More Than"_s, u"Between"_s},
                 .RangeCondition = u"Between"_s,
                 .Between = u"And"_s,
                 .EntryName = u"txtAmount"_s,
                 .EntryCaption = u"Amount"_s})
{
    new EntryFilter(First(), AmountRules());
    new EntryFilter(Second(), AmountRules());
    CenterForm(*this);
}

void frmCurrency::cmdbutton_Click(int index)
{
    if (index == Ok)
        OKClick();
    else
        AnswerWith({});
}

void frmCurrency::OKClick()
{
    Trap(u"frmCurrency OKClick Error #"_s, Icon::Critical, [this] {
        const QString from = First().text();
        const QString to = Second().text();
        if (from.isEmpty()) {
            AnswerWith({});
            return;
        }
        const QString amount = AmountText(First());
        if (!IsRange()) {
            AnswerWith(OneValue(amount));
            return;
        }
        // The two are compared as texts, which is meant: "9" to "10" is refused, "10" to "9" is not.
        if (!to.isEmpty() && from > to) {
            MsgBox(u"Please check if the From Amount is larger than the To Amount"_s, Buttons::Ok, Icon::Information,
                   u"Invalid Amount Range"_s);
            return;
        }
        AnswerWith(u"Between "_s + amount + u" To "_s + AmountText(Second()));
    });
}
