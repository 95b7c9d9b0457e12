#include "BareTransfer.h"

#include <QFile>
#include <QXmlStreamReader>
#include <cstdio>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int statementsInOneCommit = 1000;

void PutEscaped(std::FILE* file, const char* text)
{
    for (; *text != 0; ++text) {
        switch (*text) {
        case '&':
            std::fputs("&#x26;", file);
            break;
        case '<':
            std::fputs("&#x3c;", file);
            break;
        case '>':
            std::fputs("&#x3e;", file);
            break;
        case '\'':
            std::fputs("&#x27;", file);
            break;
        case '"':
            std::fputs("&#x22;", file);
            break;
        case '\n':
            std::fputs("&#xa;", file);
            break;
        case '\r':
            std::fputs("&#xd;", file);
            break;
        case '\t':
            std::fputs("&#x9;", file);
            break;
        default:
            std::putc(*text, file);
        }
    }
}

/// The dates of the sample are in the default form already.
void SameDate(sqlite3_context* context, int, sqlite3_value** arguments)
{
    sqlite3_result_value(context, arguments[0]);
}

} // namespace

void BareTransfer::Write(const std::string& file) const
{
    std::FILE* out = std::fopen(file.c_str(), "wb");
    if (out == nullptr)
        qFatal("%s can't be written", file.c_str());
    for (const char* table : {"Contacts", "Alerts", "PropDetail", "Categories", "SubCategories", "FormLetters"}) {
        sqlite3_stmt* rows = nullptr;
        sqlite3_prepare_v2(Handle(), (std::string("Select * from ") + table).c_str(), -1, &rows, nullptr);
        while (sqlite3_step(rows) == SQLITE_ROW) {
            std::fputs("\t<z:row", out);
            for (int i = 0; i < sqlite3_column_count(rows); ++i) {
                const auto* value = reinterpret_cast<const char*>(sqlite3_column_text(rows, i));
                if (value == nullptr)
                    continue;
                std::fprintf(out, " %s='", sqlite3_column_name(rows, i));
                PutEscaped(out, value);
                std::putc('\'', out);
            }
            std::fputs("/>\r\n", out);
        }
        sqlite3_finalize(rows);
    }
    std::fclose(out);
}

long BareTransfer::Parse(const QString& file)
{
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qPrintable(file));
    const QByteArray whole = in.readAll();
    const QByteArray closing = "</xml>";
    long rows = 0;
    for (qsizetype from = 0, end = whole.indexOf(closing); end > 0; end = whole.indexOf(closing, from)) {
        end += closing.size();
        QXmlStreamReader xml(whole.mid(from, end - from));
        std::vector<QString> values;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != "row"_L1)
                continue;
            ++rows;
            values.clear();
            for (const QXmlStreamAttribute& attribute : xml.attributes())
                values.push_back(attribute.value().toString());
        }
        from = end;
    }
    return rows;
}

void BareTransfer::Run(const std::vector<std::string>& statements) const
{
    sqlite3_create_function_v2(Handle(), "cdate", 1, SQLITE_UTF8, nullptr, SameDate, nullptr, nullptr, nullptr);
    int written = 0;
    for (const std::string& statement : statements) {
        const bool reads = statement.starts_with("Select") || statement.starts_with("select");
        std::string text = statement;
        if (text.starts_with("Delete * "))
            text.replace(0, 9, "Delete ");
        else if (!reads && written++ == 0)
            BareStore::Run("BEGIN");
        BareStore::Run(text);
        if (written == statementsInOneCommit) {
            BareStore::Run("COMMIT");
            written = 0;
        }
    }
    if (written > 0)
        BareStore::Run("COMMIT");
}
