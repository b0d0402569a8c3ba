// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/PaletteMatch.h"
#include "ui/Menu/PaletteEntries.h"

#include <QTest>

using namespace tessaly;

/// Which of the real titles a few letters find first.
class PaletteMatchTest : public QObject {
    Q_OBJECT

    static QList<PaletteEntry> entries()
    {
        QList<PaletteEntry> entries;
        const std::pair<const char *, const char *> titles[] = { { "New Tab", "File" }, { "Save", "File" },
            { "Save as Tessaly Document", "File" }, { "Undo", "Edit" }, { "Copy Image", "Edit" },
            { "Copy Text from Image", "Edit" }, { "Copy Style", "Edit" }, { "Zoom In", "View" },
            { "Zoom to Fit", "View" }, { "Rotate Counterclockwise", "Image" }, { "Rotate Clockwise", "Image" },
            { "Crop", "Image" }, { "Capture Region", "Capture" }, { "Capture Front Window", "Capture" },
            { "Recapture Last Region", "Capture" }, { "Copy Text from Region", "Capture" }, { "Quit Tessaly", "File" },
            { "Text", "Tool" }, { "Arrow", "Tool" }, { "Spotlight", "Tool" }, { "Größe ändern", "Bild" } };
        for (const auto &[title, place] : titles)
            entries += { .id = title, .title = QString::fromUtf8(title), .place = place };
        return entries;
    }

private Q_SLOTS:
    void findsFirst_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("first");
        QTest::newRow("the start") << "und"
                                   << "Undo";
        QTest::newRow("starts of words") << "cr"
                                         << "Crop";
        QTest::newRow("initials") << "ztf"
                                  << "Zoom to Fit";
        QTest::newRow("initials of three") << "cfw"
                                           << "Capture Front Window";
        QTest::newRow("the shorter of two") << "save"
                                            << "Save";
        QTest::newRow("a whole word before a part") << "text"
                                                    << "Text";
        QTest::newRow("words in any order") << "region capture"
                                            << "Capture Region";
        QTest::newRow("a word and its menu") << "image clock"
                                             << "Rotate Clockwise";
        QTest::newRow("letters with others between") << "rtclk"
                                                     << "Rotate Clockwise";
        QTest::newRow("in the middle of a word") << "light"
                                                 << "Spotlight";
        QTest::newRow("case") << "QUIT"
                              << "Quit Tessaly";
        QTest::newRow("without accents") << "andern"
                                         << "Größe ändern";
        QTest::newRow("blanks around it") << "  arrow "
                                          << "Arrow";
        QTest::newRow("letters out of order") << "odnu"
                                              << "";
        QTest::newRow("nothing") << "xyz"
                                 << "";
        QTest::newRow("everything") << " "
                                    << "New Tab";
    }

    void findsFirst()
    {
        QFETCH(QString, query);
        const QList<PaletteEntry> found = paletteRanked(entries(), query, {});
        QTEST(found.isEmpty() ? QString() : found.first().title, "first");
    }

    void marksTheLetters()
    {
        const auto match = matchPalette("ztf", { "Zoom to Fit", "View" });
        QVERIFY(match);
        QCOMPARE(match->letters, QList<int>({ 0, 5, 8 }));
        QVERIFY(matchPalette("view", { "Zoom to Fit", "View" })->letters.isEmpty());
    }

    void recentlyUsedComesFirst()
    {
        const auto first = [](const QString &query, const QStringList &recent) {
            return paletteRanked(entries(), query, recent).first().title;
        };
        QCOMPARE(first("", { "Crop", "Undo" }), "Crop");
        QCOMPARE(first("copy", { "Copy Text from Region" }), "Copy Text from Region");
        QCOMPARE(first("quit", { "Copy Text from Image" }), "Quit Tessaly"); // not whatever has these letters
    }

    void whatCannotBeDoneComesAfterItsLikes()
    {
        QList<PaletteEntry> all = entries();
        std::ranges::find(all, "Rotate Counterclockwise", &PaletteEntry::title)->enabled = false;
        QCOMPARE(paletteRanked(all, "rot", {}).first().title, "Rotate Clockwise");
        QCOMPARE(paletteRanked(all, "counter", {}).first().title, "Rotate Counterclockwise");
        std::ranges::find(all, "Undo", &PaletteEntry::title)->enabled = false;
        all.prepend({ .id = "x", .title = "Unlock Pinned Screenshots", .place = "Image" });
        QCOMPARE(paletteRanked(all, "und", {}).first().title, "Undo");
    }
};

QTEST_MAIN(PaletteMatchTest)
#include "PaletteMatchTest.moc"
