#pragma once

#include <QString>

class QApplication;

// The program as a benchmark drives it: the real store, records and windows, on a program folder with a sample in it.

/// Opens the folder's file, with nothing in memory.
void OpenProgram(const QString& folder);
/// Reads both levels of the tree, every contact with its properties, and every alert.
void LoadProgram();
/// Takes everything out of memory again and closes the file.
void CloseProgram();

/// Starts the program as its own main does, until its last window is closed.
int RunProgram(QApplication& application, const QString& folder);
