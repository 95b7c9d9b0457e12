#pragma once

class HoverButtonArray;
class QBoxLayout;
class QWidget;

/// The buttons of a window with a sheet, by their index.
namespace SheetButton {
inline constexpr int Cancel = 1;
inline constexpr int SaveAndExit = 2;
inline constexpr int SaveNAdd = 3;
} // namespace SheetButton

/// Adds the row of buttons to a window, with their keys Alt+C, Alt+S and Alt+A. A press leaves the focus where it is:
/// the sheet is asked first, and the person goes on in the same row after a refusal.
[[nodiscard]] HoverButtonArray* AddSheetButtons(QWidget& window, QBoxLayout& layout);
