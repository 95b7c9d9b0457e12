#pragma once

#include <QIODevice>
#include <functional>

/// How many sections a file is cut into, and what becomes of what follows the closing tag of the last but one: the last
/// section takes it whole, or ends at a closing tag of its own with the rest passed over.
struct CutPlan
{
    int Sections;
    bool LastTakesRest;
};

/// Cuts a transfer file line by line behind the first "</xml>" of a line; the rest of that line begins the next
/// section. Lines end in LF or CR LF, and are written with CR LF. `next` opens the sections in their order, from 0, as
/// they begin.
void CutSections(QIODevice& file, const CutPlan& plan, const std::function<QIODevice&(int section)>& next);
