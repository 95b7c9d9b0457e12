#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

/// A small picture of a photo file. Where there is none, or it cannot be shown at once, a quiet placeholder stands
/// there: for a file that is missing, broken or no picture, and for one of more than 24 megapixels, or 8 where its
/// format cannot be read scaled. No box ever comes.
class PhotoPreview : public QWidget
{
    Q_OBJECT

public:
    explicit PhotoPreview(QWidget* parent = nullptr);

    /// Shows this file as soon as the events have settled; "" shows that there is no photo.
    void SetFile(const QString& path);
    /// What is shown; null where the placeholder stands.
    [[nodiscard]] const QImage& Photo() const { return m_photo; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Read();

    QString m_path;
    QImage m_photo;
    QTimer m_reading;
};

/// The photo, at most as large as `room` in pixels; null where it is not to be shown.
[[nodiscard]] QImage ReadPhoto(const QString& path, QSize room);
