// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/LiveTextModel.h"

namespace tessaly {

LiveTextModel::LiveTextModel(TextRecognizer &recognizer, QObject *parent) : QObject(parent), m_recognizer(recognizer)
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &LiveTextModel::begin);
}

LiveTextModel::~LiveTextModel() = default;

void LiveTextModel::cancel()
{
    m_delay.stop();
    m_task.reset();
    m_image = {};
    m_analysis.reset();
}

void LiveTextModel::set(Status status)
{
    m_status = status;
    Q_EMIT changed();
}

void LiveTextModel::analyze(const RasterImage &image, std::chrono::milliseconds delay)
{
    cancel();
    if (!m_recognizer.isSupported())
        return set(Unsupported {});
    m_image = image;
    if (delay.count() <= 0)
        return begin();
    m_delay.start(delay);
    Q_EMIT changed(); // what had been read is gone
}

void LiveTextModel::begin()
{
    set(Analyzing {});
    TextRecognizer::Request request { .image = std::exchange(m_image, {}) };
    m_task = m_recognizer.recognize(std::move(request), [this](Result<RecognizedContent> result) {
        m_analysis = result ? std::move(*result) : RecognizedContent();
        set(Ready { !m_analysis->lines.isEmpty() });
    });
}

void LiveTextModel::stop()
{
    cancel();
    set(Off {});
}

} // namespace tessaly
