#pragma once

#include <QStringList>

class QWidget;

// What can be asked of any window. Each question gives what is wrong, one line for each control; nothing is good.

/// Controls that take the focus by Tab, but that Tab does not come to.
[[nodiscard]] QStringList NotReachedByTab(QWidget& window);

/// Inputs, buttons, lists, tabs and panels that a screen reader could not call by a name.
[[nodiscard]] QStringList WithoutName(const QWidget& window);

/// Labels, buttons, entries of the menu bar, tabs, headers and boxes whose text has less room than it needs.
[[nodiscard]] QStringList CutTexts(const QWidget& window);

/// The object name of a control, or its class where it has none.
[[nodiscard]] QString NameOf(const QWidget* control);
