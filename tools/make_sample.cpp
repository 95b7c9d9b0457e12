// Fills a freshly made database with an invented agency, for demonstrations, tests and benchmarks.
//
//   make_sample [--contacts N] [--seed S] [--today yyyy-mm-dd] [--database FILE]
//
// The same numbers give the same agency. A database that holds anything already is left alone.

#include "sample/Agency.h"
#include "Store.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

SamplePlan ReadPlan(const QCommandLineParser& parser)
{
    SamplePlan plan;
    bool contactsRead = false;
    bool seedRead = false;
    plan.contacts = parser.value(u"contacts"_s).toInt(&contactsRead);
    plan.seed = parser.value(u"seed"_s).toULongLong(&seedRead);
    plan.today =
        parser.isSet(u"today"_s) ? QDate::fromString(parser.value(u"today"_s), Qt::ISODate) : QDate::currentDate();
    if (!contactsRead || plan.contacts < 0)
        throw std::runtime_error("--contacts wants a whole number");
    if (!seedRead)
        throw std::runtime_error("--seed wants a whole number");
    if (!plan.today.isValid())
        throw std::runtime_error("--today wants a date as yyyy-mm-dd");
    return plan;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Fills a freshly made database with an invented agency."_s);
    parser.addHelpOption();
    parser.addOptions({{u"contacts"_s, u"How many contacts."_s, u"N"_s, u"2000"_s},
                       {u"seed"_s, u"Which agency: the same number gives the same one."_s, u"S"_s, u"1"_s},
                       {u"today"_s, u"The day around which the alerts lie; today if not given."_s, u"yyyy-mm-dd"_s},
                       {u"database"_s, u"The database to fill."_s, u"FILE"_s, u"Data/Contacts.mdb"_s}});
    parser.process(application);
    try {
        FillAgency(Store(parser.value(u"database"_s)), ReadPlan(parser));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_sample: %s\n", error.what());
        return 1;
    }
    return 0;
}
