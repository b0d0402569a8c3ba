// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

namespace tessaly {

class AnnotationStore;
class EditorZoom;

/// The line below the canvas: sentences in passing, the document's size and resolution, the zoom.
class EditorStatus : public QWidget {
    Q_OBJECT

public:
    /// Keeps the references.
    EditorStatus(const AnnotationStore &store, const EditorZoom &zoom, QWidget *parent = nullptr);

    /// Shows a sentence for some seconds.
    void showMessage(const QString &sentence);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refresh();

    const AnnotationStore &m_store;
    const EditorZoom &m_zoom;
    QLabel *m_message;
    QLabel *m_size;
    QLabel *m_scale;
    QTimer m_passing;
};

/// The magnification as people read it: "67 %".
QString zoomText(double scale);

} // namespace tessaly
