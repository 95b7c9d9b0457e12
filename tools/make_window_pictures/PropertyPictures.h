#pragma once

class Album;
class QWidget;

/// Draws the property list and the property editor of a contact of the list who has several properties.
void TakeProperties(Album& album, QWidget& contactList);
