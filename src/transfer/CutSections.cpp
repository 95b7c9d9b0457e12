#include "transfer/CutSections.h"

#include "core/Files.h"
#include "core/RunTimeError.h"

namespace {

QByteArray ReadLine(QIODevice& file)
{
    QByteArray line = file.readLine();
    if (line.isEmpty())
        throw RunTimeError(ErrorNumber::PathFileAccess);
    if (line.endsWith('\n'))
        line.chop(line.endsWith("\r\n") ? 2 : 1);
    return line;
}

void WriteLine(QIODevice& section, QByteArrayView line)
{
    WriteBytes(section, line);
    WriteBytes(section, "\r\n");
}

} // namespace

void CutSections(QIODevice& file, const CutPlan& plan, const std::function<QIODevice&(int section)>& next)
{
    constexpr QByteArrayView closingTag = "</xml>";
    int section = 0;
    QIODevice* present = &next(section);
    while (!file.atEnd()) {
        const QByteArray line = ReadLine(file);
        const bool looks = section + 1 < plan.Sections || !plan.LastTakesRest;
        const qsizetype tag = looks ? line.indexOf(closingTag) : -1;
        if (tag < 0) {
            WriteLine(*present, line);
            continue;
        }
        const qsizetype end = tag + closingTag.size();
        WriteLine(*present, QByteArrayView(line).first(end));
        if (++section == plan.Sections)
            return;
        present = &next(section);
        WriteLine(*present, QByteArrayView(line).sliced(end));
    }
}
