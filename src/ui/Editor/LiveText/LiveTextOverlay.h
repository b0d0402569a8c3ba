// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/LiveTextModel.h"
#include "ui/Editor/LiveText/LiveTextBadge.h"
#include "ui/Editor/LiveText/LiveTextLayer.h"

#include <QPointer>

namespace tessaly {

class Clipboard;
class Links;
class TextCopier;

/// Text of a capture that can be selected on its canvas: reads the capture when it is seen and whenever its picture
/// changes, and tells so on a badge. Off until it is switched on.
class LiveTextOverlay : public QObject {
    Q_OBJECT

public:
    struct Services {
        TextRecognizer &recognizer;
        TextCopier &copier; ///< for codes
        Clipboard &clipboard;
        Links &links;
        std::chrono::milliseconds delay { 400 }; ///< that a picture must have stood before it is read
    };
    /// Keeps the references.
    LiveTextOverlay(AnnotationStore &store, CanvasView &canvas, const Services &services);

    void setEnabled(bool enabled);
    const LiveTextModel &model() const { return m_model; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();
    void showStatus();
    void copyText(const QString &text);
    void copyCode(const RecognizedContent::Code &code);
    void openLink(const QUrl &link);

    AnnotationStore &m_store;
    CanvasView &m_canvas;
    Services m_services;
    LiveTextModel m_model;
    LiveTextLayer m_layer;
    QPointer<LiveTextBadge> m_badge; ///< the canvas owns it
    bool m_isEnabled = false;
    std::optional<qint64> m_picture; ///< the key of the pixels that were given to the model
};

} // namespace tessaly
