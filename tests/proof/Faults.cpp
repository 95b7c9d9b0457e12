#include "proof/Faults.h"

#include <csignal>
#include <QFileInfo>
#include <QTest>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

Undo AtTheEnd(std::function<void()> act)
{
    return {nullptr, [act = std::move(act)](void*) { act(); }};
}

/// Takes the rights away that let root write anywhere; the folder then belongs to the person who is left.
Undo WithoutPrivileges(const FreshDatabase& fresh)
{
    constexpr uid_t nobody = 65534;
    if (geteuid() != 0)
        return {};
    for (const QString& path : {fresh.Folder(), QFileInfo(fresh.DatabaseFile()).path(), fresh.DatabaseFile()}) {
        if (chown(qPrintable(path), nobody, static_cast<gid_t>(-1)) != 0)
            qFatal("%s can't be given away", qPrintable(path));
    }
    if (setresuid(nobody, nobody, 0) != 0)
        qFatal("The privileges can't be dropped");
    return AtTheEnd([] {
        if (setresuid(0, 0, 0) != 0)
            qFatal("The privileges don't come back");
    });
}

Undo ReadOnly(const QString& path)
{
    const QFile::Permissions before = QFile::permissions(path);
    QFile::setPermissions(path, QFile::ReadOwner | (before & QFile::ExeOwner));
    return AtTheEnd([=] { QFile::setPermissions(path, before); });
}

} // namespace

Undo FullDisk(const FreshDatabase& fresh, qint64 room)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit now{static_cast<rlim_t>(QFileInfo(fresh.DatabaseFile()).size() + room), before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &now);
    return AtTheEnd([before] { setrlimit(RLIMIT_FSIZE, &before); });
}

std::shared_ptr<Database> LockedBy(const FreshDatabase& fresh, const QByteArray& transaction)
{
    auto other = std::make_shared<Database>(fresh.DatabaseFile());
    for (const QByteArray& statement : transaction.split(';')) {
        if (!other->Run(statement).isEmpty())
            qFatal("The other program can't %s", statement.constData());
    }
    return other;
}

void AddFaults()
{
    QTest::addColumn<Fault>("fault");
    const auto folder = [](const FreshDatabase& fresh) { return QFileInfo(fresh.DatabaseFile()).path(); };
    QTest::newRow("a folder that can't be written")
        << Fault{false, [=](const FreshDatabase& fresh) {
                     return QList{ReadOnly(folder(fresh)), WithoutPrivileges(fresh)};
                 }};
    QTest::newRow("a file that can't be written")
        << Fault{true, [](const FreshDatabase& fresh) {
                     return QList{ReadOnly(fresh.DatabaseFile()), WithoutPrivileges(fresh)};
                 }};
    QTest::newRow("a full disk") << Fault{false, [](const FreshDatabase& fresh) { return QList{FullDisk(fresh)}; }};
    QTest::newRow("another program writes")
        << Fault{false, [](const FreshDatabase& fresh) { return QList<Undo>{LockedBy(fresh, "BEGIN IMMEDIATE")}; }};
    QTest::newRow("another program reads")
        << Fault{false, [](const FreshDatabase& fresh) {
                     return QList<Undo>{LockedBy(fresh, "BEGIN; SELECT * FROM Contacts")};
                 }};
}
