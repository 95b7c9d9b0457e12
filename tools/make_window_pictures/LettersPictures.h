#pragma once

class Album;
class frmMain;

/// The tab of the letters in its states, and the window of the labels. Goes back to the first tab.
void TakeLetters(Album& album, frmMain& main);
