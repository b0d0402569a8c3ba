// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryText.h"

#include <QTest>

using namespace tessaly;

/// What was read and what was written, in one text and apart again.
class HistoryTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void bothPartsComeBack_data()
    {
        QTest::addColumn<std::optional<QString>>("picture");
        QTest::addColumn<QString>("marks");
        QTest::addColumn<bool>("isStored");
        using Text = std::optional<QString>;
        QTest::newRow("nothing") << Text() << QString() << false;
        QTest::newRow("read, and empty") << Text(QString()) << QString() << true;
        QTest::newRow("read") << Text("Inbox\nSent") << QString() << true;
        QTest::newRow("not read, but marked") << Text() << QString("note") << true;
        QTest::newRow("empty, but marked") << Text(QString()) << QString("note") << true;
        QTest::newRow("both") << Text("Inbox\n") << QString("two\nlines") << true;
    }

    void bothPartsComeBack()
    {
        QFETCH(std::optional<QString>, picture);
        QFETCH(QString, marks);
        const auto stored = HistoryText::joined(picture, marks);
        QTEST(stored.has_value(), "isStored");
        QCOMPARE(HistoryText::pictureOf(stored), picture);
        QCOMPARE(HistoryText::isRead(stored), picture.has_value());
        QCOMPARE(HistoryText::marksOf(stored), marks);
        // A change of the one leaves the other.
        const auto changed = HistoryText::joined(HistoryText::pictureOf(stored), "other\fpage");
        QCOMPARE(HistoryText::pictureOf(changed), picture);
    }

    void aPageBreakThatWasReadIsNone()
    {
        const auto stored = HistoryText::joined("page\fpage", "note");
        QCOMPARE(HistoryText::marksOf(stored), "note");
        QCOMPARE(HistoryText::pictureOf(stored), "page\npage");
    }

    void marksThatSaySomethingAreFound()
    {
        Annotation text(AnnotationKind::Text, {}, {});
        text.text = "Look here";
        Annotation number(AnnotationKind::Stamp, {}, {});
        number.stamp = StampKind::Number;
        number.text = "7";
        number.stampLabel = "step";
        Annotation arrow(AnnotationKind::Arrow, {}, {});
        arrow.text = "unseen";
        Annotation blank(AnnotationKind::Text, {}, {});
        blank.text = " ";
        const Watermark logo { .kind = WatermarkKind::Image, .text = "unseen" };
        QCOMPARE(HistoryText::ofMarks({ text, number, arrow, blank }, Watermark { .text = "© me" }),
            "Look here\nstep\n© me");
        QCOMPARE(HistoryText::ofMarks({ arrow, blank }, logo), QString());
    }
};

QTEST_GUILESS_MAIN(HistoryTextTest)
#include "HistoryTextTest.moc"
