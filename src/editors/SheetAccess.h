#pragma once

/// Lets a screen reader find the controls of a SheetEditor. They lie on a table, and a table tells of its cells alone.
void InstallSheetAccess();
