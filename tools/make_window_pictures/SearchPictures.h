#pragma once

class Album;
class frmMain;

/// The search tab: its criteria, what it finds, its menus and its windows. Leaves the first tab in front.
void TakeSearch(Album& album, frmMain& main);
