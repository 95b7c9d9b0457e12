// Makes the delivered Contacts.mdb: every table of the schema, empty but for the makers and numbers of labels.
//
//   make_database OUTPUT SCHEMA GEOMETRY...
//
// GEOMETRY is the table of label sheets that make_labels writes. OUTPUT must not exist: an existing file holds a
// person's data and is never touched, not even when another process makes it at the same moment.

#include "Store.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

/// Adds the makers in the order in which they first appear, and under each its numbers.
void FillLabels(const Store& store, const QString& geometry)
{
    const Store::Statement addProduct(store, "INSERT INTO LabelProducts (BrandName) VALUES (?)");
    const Store::Statement addNumber(store, "INSERT INTO LabelNumbers (LabelProductID, LabelNumber) VALUES (?, ?)");
    QHash<QString, qint64> products;
    const QStringList lines = QString::fromUtf8(ReadAll(geometry)).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines.sliced(1)) { // the first line names the columns
        const QStringList fields = line.split(u',');
        if (fields.size() < 2)
            throw std::runtime_error("no label: " + line.toStdString());
        auto product = products.find(fields[0]);
        if (product == products.end())
            product = products.insert(fields[0], addProduct.Run({fields[0]}));
        addNumber.Run({*product, fields[1]});
    }
}

/// Writes the whole store into `path`, an empty file.
void Fill(const QString& path, const QStringList& sources)
{
    const Store store(path);
    store.Execute("BEGIN");
    store.Execute(ReadAll(sources[0]));
    for (const QString& geometry : sources.sliced(1))
        FillLabels(store, geometry);
    store.Execute("COMMIT");
}

void MakeDatabase(const QString& output, const QStringList& sources)
{
    const auto refuse = [&] { throw std::runtime_error(output.toStdString() + " exists already and is left alone"); };
    if (QFileInfo::exists(output))
        refuse();
    // Made beside its place under a name of its own (which Qt opens for its owner only), then linked: a link never
    // replaces a file.
    QTemporaryFile temporary(QFileInfo(output).absolutePath() + "/.Contacts-XXXXXX"_L1);
    if (!temporary.open())
        throw std::runtime_error("cannot write into " + QFileInfo(output).absolutePath().toStdString());
    temporary.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    Fill(temporary.fileName(), sources);
    if (::link(QFile::encodeName(temporary.fileName()).constData(), QFile::encodeName(output).constData()) != 0) {
        if (errno == EEXIST)
            refuse();
        throw std::runtime_error("cannot make " + output.toStdString() + ": " + std::strerror(errno));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::fputs("usage: make_database OUTPUT SCHEMA GEOMETRY...\n", stderr);
        return 2;
    }
    try {
        MakeDatabase(arguments[1], arguments.sliced(2));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_database: %s\n", error.what());
        return 1;
    }
    return 0;
}
