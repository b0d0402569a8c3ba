// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/SampleDesktop.h"

#include "tests/support/Patience.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace tessaly::test {

SampleDesktop::SampleDesktop(DesktopSession &session) : m_session(session)
{
    QImage pattern(1280, 900, QImage::Format_RGB32);
    for (int y = 0; y < pattern.height(); ++y) {
        for (int x = 0; x < pattern.width(); ++x)
            pattern.setPixel(x, y, qRgb(x % 251, y % 241, (x + y) % 2 ? 255 : 0));
    }
    const QString plain = session.path(QStringLiteral("plain.png")),
                  lettered = session.path(QStringLiteral("sample.png"));
    const QString small = session.path(QStringLiteral("small.png"));
    pattern.save(plain);
    pattern.copy(300, 200, 240, 160).save(small);
    session.output("convert",
        { plain, "-fill", "white", "-draw", "rectangle 640,560 1240,680", "-fill", "black", "-font", "DejaVu-Sans",
            "-pointsize", "36", "-draw", QStringLiteral("text 690,632 '%1'").arg(QLatin1StringView(words())),
            lettered });
    session.showBackground(QImage(lettered));

    endWithThisProcess(m_shown);
    m_shown.start(QStringLiteral("display"), { "-geometry", "+500+300", small });
    const bool shown = QTest::qWaitFor(
        [this] {
            const QByteArray list = m_session.output(m_session.program(), { "windows", "--json" });
            const QJsonArray rect = QJsonDocument::fromJson(list).array()[0].toObject()[u"layoutRect"].toArray();
            m_window = QRect(rect[0].toInt(), rect[1].toInt(), rect[2].toInt(), rect[3].toInt());
            return m_window.isValid();
        },
        patience);
    const QString taken = session.path(QStringLiteral("taken.png"));
    session.output("import", { "-window", "root", taken });
    m_screen = shown ? DesktopSession::pixels(taken) : QImage();
}

SampleDesktop::~SampleDesktop()
{
    m_shown.terminate();
    m_shown.waitForFinished(patience);
}

} // namespace tessaly::test
