#pragma once

#include <QColor>

class QApplication;

/// The look of the program: quiet Fusion, one accent colour, 8-pixel spacing, focus that always shows.
namespace Theme {

enum class Scheme
{
    System, ///< light or dark as the person's desktop has it
    Light,
    Dark
};

/// Spacing between controls, in pixels.
inline constexpr int Spacing = 8;

// Colours that carry a meaning and stay the same in both schemes.
inline constexpr QColor Red(255, 0, 0);
inline constexpr QColor Green(0, 192, 0);
inline constexpr QColor LightBlue(154, 167, 252);
inline constexpr QColor Lavender(0xE8, 0xE9, 0xFF); ///< the row in edit

/// Gives the whole program its look; to be called once, before the first window.
void Apply(QApplication& application, Scheme scheme = Scheme::System);

} // namespace Theme
