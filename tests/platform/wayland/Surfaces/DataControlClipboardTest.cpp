// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/DataControlClipboard.h"

#include "tests/support/PatientTest.h"
#include "tests/support/SwaySession.h"
#include "tests/support/VirtualScreen.h"

#include <QSignalSpy>
#include <QTest>

using namespace tessaly;
using tessaly::test::SwaySession;

/// Copies to other programs and pastes from them, through a real compositor and without a window.
class DataControlClipboardTest : public QObject {
    Q_OBJECT

    struct Offer final : ClipboardOffer {
        Offer(QList<std::pair<QString, QByteArray>> offered, QStringList &log) : contents(std::move(offered)), made(log)
        {
        }

        QStringList types() const override
        {
            QStringList types;
            for (const auto &[type, bytes] : contents)
                types += type;
            return types;
        }
        QByteArray data(const QString &wanted) override
        {
            made += wanted;
            for (const auto &[type, bytes] : contents) {
                if (type == wanted)
                    return bytes;
            }
            return {};
        }

        QList<std::pair<QString, QByteArray>> contents;
        QStringList &made; ///< the types that were asked for
    };

    std::unique_ptr<SwaySession> m_session;
    std::unique_ptr<Clipboard> m_clipboard;
    QStringList m_made;
    const QString m_png = QStringLiteral("image/png"), m_text = QStringLiteral("text/plain");
    const QByteArray m_large = QByteArray(3'000'000, 'x') + "end"; ///< many times what a pipe holds

    static std::unique_ptr<QProcess> started(const QStringList &command)
    {
        auto program = std::make_unique<QProcess>();
        test::endWithThisProcess(*program);
        program->start(command.first(), command.mid(1));
        return program;
    }

    /// What another program pastes, while this one goes on handling events.
    static QByteArray pasted(const QStringList &arguments)
    {
        const auto program = started(QStringList { QStringLiteral("wl-paste"), QStringLiteral("-n") } + arguments);
        if (!QTest::qWaitFor([&] { return program->state() == QProcess::NotRunning; }, test::patience))
            return "did not end";
        return program->readAllStandardOutput();
    }

    void offer()
    {
        m_clipboard->offer(std::make_unique<Offer>(
            QList<std::pair<QString, QByteArray>> { { m_png, m_large }, { m_text, "words" } }, m_made));
    }

private Q_SLOTS:
    void init()
    {
        m_made.clear();
        m_session = std::make_unique<SwaySession>(QList<SwaySession::Monitor> { { { 320, 200 }, 1, { 0, 0 } } });
        QVERIFY(m_session->isReady());
        m_clipboard = DataControlClipboard::create();
        QVERIFY(m_clipboard);
    }

    void cleanup()
    {
        m_clipboard.reset();
        m_session.reset();
    }

    void offersTypesAndMakesWhatIsAskedFor()
    {
        QSignalSpy changed(m_clipboard.get(), &Clipboard::changed);
        offer();
        QCOMPARE(pasted({ QStringLiteral("-l") }).simplified(), "image/png text/plain");
        QCOMPARE(m_made, QStringList());
        QCOMPARE(pasted({ QStringLiteral("-t"), m_png }), m_large);
        QCOMPARE(m_made, QStringList { m_png });
        QVERIFY(!changed.isEmpty());
        // Its own content it knows without the compositor.
        QCOMPARE(m_clipboard->data(m_text), "words");
    }

    void waitsForNoSlowReader()
    {
        offer();
        const auto slow = started(
            { QStringLiteral("sh"), QStringLiteral("-c"), QStringLiteral("wl-paste -n -t image/png | sleep 1000") });
        QTRY_COMPARE(m_made, QStringList { m_png });
        QCOMPARE(pasted({ QStringLiteral("-t"), m_text }), "words");
        // A reader that goes away in the middle ends nothing.
        const auto hasty = started(
            { QStringLiteral("sh"), QStringLiteral("-c"), QStringLiteral("wl-paste -n -t image/png | head -c 9") });
        QTRY_COMPARE(hasty->state(), QProcess::NotRunning);
        QCOMPARE(hasty->readAllStandardOutput(), m_large.left(9));
        QCOMPARE(pasted({ QStringLiteral("-t"), m_text }), "words");
        slow->kill();
        slow->waitForFinished(test::patience);
    }

    void pastesFromAnotherProgram()
    {
        offer();
        QSignalSpy changed(m_clipboard.get(), &Clipboard::changed);
        QVERIFY(SwaySession::output(QStringLiteral("sh"),
            { QStringLiteral("-c"), QStringLiteral("wl-copy -t image/png >/dev/null 2>&1") }, m_large + "theirs"));
        QTRY_COMPARE(m_clipboard->knownTypes(), QStringList { m_png });
        QVERIFY(!changed.isEmpty());
        QCOMPARE(m_clipboard->data(m_png), m_large + "theirs");
        QCOMPARE(m_clipboard->data(m_text), QByteArray());
        // A second one sees the same from its start.
        const auto other = DataControlClipboard::create();
        QCOMPARE(other->types(), QStringList { m_png });
        QVERIFY(SwaySession::output(QStringLiteral("wl-copy"), { QStringLiteral("-c") }));
        QTRY_COMPARE(m_clipboard->types(), QStringList());
    }

    void survivesTheCompositor()
    {
        offer();
        QCOMPARE(pasted({ QStringLiteral("-t"), m_text }), "words");
        QSignalSpy changed(m_clipboard.get(), &Clipboard::changed);
        m_session->end();
        QTRY_VERIFY(m_clipboard->types().isEmpty());
        QVERIFY(!changed.isEmpty());
        offer();
        QCOMPARE(m_clipboard->data(m_text), QByteArray());
        QVERIFY(!DataControlClipboard::create());
    }
};

QTEST_GUILESS_MAIN(DataControlClipboardTest)
#include "DataControlClipboardTest.moc"
