// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/TextCopier.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeRecognition.h"
#include "tests/support/Rows.h"

using namespace tessaly;
using namespace tessaly::test;
using namespace std::chrono_literals;

class TextCopierTest : public QObject {
    Q_OBJECT

    /// A copier over stand-ins; something else is on the clipboard.
    struct Desk {
        explicit Desk(std::chrono::milliseconds patience = 1h) : copier(recognizer, clipboard, toasts, links, patience)
        {
            clipboard.offer(std::make_unique<FixedOffer>("text/plain", "earlier"));
        }

        FakeRecognizer recognizer;
        FakeClipboard clipboard;
        FakeToasts toasts;
        FakeLinks links;
        TextCopier copier;
    };

    static RasterImage picture(QColor color = Qt::white)
    {
        QImage pixels(4, 4, QImage::Format_RGB32);
        pixels.fill(color);
        return RasterImage::fromPixels(pixels);
    }

    static RecognizedContent content(const QStringList &lines, const QStringList &codes = {})
    {
        RecognizedContent content;
        for (const QString &line : lines)
            content.lines.append({ line, QRectF(0, 0.1 * double(content.lines.size()), 1, 0.1) });
        for (const QString &code : codes)
            content.codes.append({ code, true, QRectF() });
        return content;
    }

private Q_SLOTS:
    void whatIsFoundIsCopiedAndTold_data()
    {
        // found: empty: recognising failed
        columns<std::optional<RecognizedContent>, QByteArray, QByteArray, QString>("found", "text", "link", "notice");
        using Found = std::optional<RecognizedContent>;
        row("text", Found(content({ "Grüße", "an alle" })), QByteArray("Grüße\nan alle"), QByteArray(),
            "Text copied to clipboard");
        row("a link goes before text", Found(content({ "scan me" }, { "https://example.org/ä" })),
            QByteArray("https://example.org/ä"), QByteArray("https://example.org/%C3%A4\r\n"),
            "QR code link copied|example.org");
        row("two codes, one of them a link", Found(content({}, { "https://example.org", "12345" })),
            QByteArray("https://example.org\n12345"), QByteArray(), "Code content copied to clipboard");
        row("a code that is no link", Found(content({ "x" }, { "ftp://example.org" })), QByteArray("ftp://example.org"),
            QByteArray(), "Code content copied to clipboard");
        row("nothing", Found(content({})), QByteArray("earlier"), QByteArray(), "No text found");
        row("failed", Found(), QByteArray("earlier"), QByteArray(), "No text found");
    }

    void whatIsFoundIsCopiedAndTold()
    {
        QFETCH(std::optional<RecognizedContent>, found);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, link);
        QFETCH(QString, notice);
        Desk desk;
        desk.copier.copyText(picture());
        QCOMPARE(desk.recognizer.pending.first()->request.level, TextRecognizer::Level::Accurate);
        QCOMPARE(desk.recognizer.pending.first()->request.codes, TextRecognizer::Codes::Detect);
        QCOMPARE(desk.recognizer.pending.first()->request.image, picture());
        if (found)
            desk.recognizer.answer(*found);
        else
            desk.recognizer.answer(Failure { "broken" });
        QCOMPARE(desk.clipboard.data("text/plain"), text);
        QCOMPARE(desk.clipboard.data("text/uri-list"), link);
        QCOMPARE(desk.clipboard.types().contains("text/uri-list"), !link.isEmpty());
        QCOMPARE(desk.toasts.shown, QStringList { notice });
        QVERIFY(desk.links.opened.isEmpty());
    }

    void theLinkOpensOnlyWhenAsked()
    {
        Desk desk;
        const auto outcome = desk.copier.deliver(content({}, { "HTTPS://Example.org/x" }));
        QCOMPARE(std::get<TextCopier::CopiedCode>(outcome).url, QUrl("https://example.org/x"));
        QVERIFY(desk.toasts.shown.isEmpty());
        desk.copier.announce(outcome);
        QVERIFY(desk.links.opened.isEmpty());
        desk.toasts.openLink();
        QCOMPARE(desk.links.opened, QList { QUrl("https://example.org/x") });
    }

    void onlyALongRecognitionIsTold()
    {
        Desk quick;
        quick.copier.copyText(picture());
        quick.recognizer.answer(content({ "a" }));
        QCOMPARE(quick.toasts.shown.size(), 1);
        QCOMPARE(quick.toasts.lastDuration, 1300ms);
        Desk slow(1ms);
        slow.copier.copyText(picture());
        QTRY_COMPARE(slow.toasts.shown, QStringList { "Recognizing text…" });
        QCOMPARE(slow.toasts.lastDuration, 90s);
        slow.recognizer.answer(content({ "a" }));
        QCOMPARE(slow.toasts.shown.last(), "Text copied to clipboard");
    }

    void aNewerCopyCancelsTheOlder()
    {
        Desk desk;
        desk.copier.copyText(picture(Qt::red));
        desk.copier.copyText(picture(Qt::blue));
        QCOMPARE(desk.recognizer.cancelled, 1);
        QCOMPARE(desk.recognizer.pending.size(), 1);
        QCOMPARE(desk.recognizer.pending.first()->request.image, picture(Qt::blue));
        desk.recognizer.answer(content({ "blue" }));
        QCOMPARE(desk.toasts.shown, QStringList { "Text copied to clipboard" });
        QCOMPARE(desk.clipboard.data("text/plain"), "blue");
        desk.copier.copyText(picture());
        QCOMPARE(desk.recognizer.cancelled, 1); // one that is done cannot be cancelled
    }
};

QTEST_GUILESS_MAIN(TextCopierTest)
#include "TextCopierTest.moc"
