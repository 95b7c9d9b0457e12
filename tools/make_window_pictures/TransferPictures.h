#pragma once

class Album;
class QWidget;

/// The pages of the feedback window.
void TakeFeedback(Album& album, QWidget& mainWindow);
