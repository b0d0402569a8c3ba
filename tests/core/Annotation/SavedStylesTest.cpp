// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/SavedStyles.h"
#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"

#include <QJsonDocument>
#include <QSignalSpy>

using namespace tessaly;

class SavedStylesTest : public QObject {
    Q_OBJECT

    static QStringList names(const QList<SavedStyle> &styles)
    {
        QStringList all;
        for (const SavedStyle &style : styles)
            all += style.displayName();
        return all;
    }

    static RasterImage blank() { return RasterImage::fromPixels(QImage(20, 20, QImage::Format_RGB32)); }

private Q_SLOTS:
    void startsWithThePresetsOfEachTool()
    {
        Settings settings { QString() };
        const SavedStyles styles(settings);
        QCOMPARE(styles.all().size(), 8);
        QCOMPARE(names(styles.styles(Tool::Arrow)), QStringList({ "Classic", "Thin Blue", "Curved Orange" }));
        QCOMPARE(names(styles.styles(Tool::Text)), QStringList({ "Title", "Note", "On Dark Background" }));
        QCOMPARE(names(styles.styles(Tool::Rectangle)), QStringList({ "Pink Frame", "Thin Blue Frame" }));
        QCOMPARE(styles.styles(Tool::Ellipse), styles.styles(Tool::Rectangle));
        QVERIFY(styles.styles(Tool::Line).isEmpty());
        const SavedStyle curved = styles.styles(Tool::Arrow)[2];
        QVERIFY(curved.curved && curved.arrowHead == ArrowHeadStyle::Filled && curved.lineWidth == 8);
        QCOMPARE(settings.value(SettingKeys::savedAnnotationStyles), std::nullopt);
    }

    void nameOrPresetIsShown_data()
    {
        test::columns<std::optional<QString>, std::optional<QString>, QString>("name", "preset", "shown");
        using Text = std::optional<QString>;
        test::row("own", Text("Mine"), Text(), "Mine");
        test::row("renamed preset", Text("Mine"), Text("title"), "Mine");
        test::row("empty name", Text(""), Text("title"), "Title");
        test::row("preset of another version", Text(), Text("neon"), "");
        test::row("neither", Text(), Text(), "");
    }

    void nameOrPresetIsShown()
    {
        QFETCH(std::optional<QString>, name);
        QFETCH(std::optional<QString>, preset);
        QTEST(SavedStyle({ .name = name, .preset = preset }).displayName(), "shown");
    }

    void everyChangeIsStoredAtOnce()
    {
        Settings settings { QString() };
        SavedStyles styles(settings);
        QSignalSpy changes(&styles, &SavedStyles::changed);
        const ToolStyle current { .colorHex = "#123456", .ellipseFilled = true, .textSize = 31 };
        const SavedStyle mine = SavedStyle::capturing(current, Tool::Ellipse, QStringLiteral("Mine"));
        QVERIFY(styles.add(mine));
        QVERIFY(styles.rename(mine.id, QStringLiteral("Ours")));
        QVERIFY(styles.rename(styles.all()[0].id, QStringLiteral("Not classic")));
        QVERIFY(styles.remove(styles.all()[1].id));
        QCOMPARE(changes.size(), 4);
        QVERIFY(styles.remove(QUuid::createUuid()));
        QCOMPARE(changes.size(), 4);
        QCOMPARE(SavedStyles(settings).all(), styles.all());
        QCOMPARE(styles.styles(Tool::Rectangle).last().displayName(), QStringLiteral("Ours"));
        QVERIFY(styles.all().last().filled && styles.all().last().textSize == 31);

        QVERIFY(styles.restoreDefaults());
        QCOMPARE(names(styles.all()),
            QStringList({ "Classic", "Thin Blue", "Curved Orange", "Title", "Note", "On Dark Background", "Pink Frame",
                "Thin Blue Frame", "Ours" }));
        QCOMPARE(SavedStyles(settings).all(), styles.all());
        const QByteArray stored = *settings.value(SettingKeys::savedAnnotationStyles);
        QVERIFY(stored.startsWith("{\"styles\":[{\"arrowHead\":\"tapered\",\"bold\":false,")
            && stored.endsWith("\"version\":1}"));
        QVERIFY(!QJsonDocument::fromJson(stored)["styles"][0].toObject().contains(QLatin1StringView("name")));
    }

    void readsWhatItCan_data()
    {
        test::columns<QByteArray, QStringList>("stored", "shown");
        const QStringList presets = [] {
            Settings settings { QString() };
            return names(SavedStyles(settings).all());
        }();
        const QByteArray good(
            R"({"id":"7b0d2f1e-6f43-4f4e-9f43-0d2f1e6f434f","category":"text","name":"A","future":[1]})");
        const QByteArray list = "{\"version\":1,\"styles\":[" + good + ",7,{\"id\":3},{},"
            + QByteArray(good).replace("text", "song") + "," + QByteArray(good).replace("\"A\"", "\"B\"") + "]}";
        test::row("bad elements", list, QStringList({ "A", "B" }));
        test::row("all deleted", QByteArray("{\"version\":1,\"styles\":[]}"), QStringList());
        test::row("no JSON", QByteArray("nonsense"), presets);
        test::row("no list", QByteArray("{\"styles\":{}}"), presets);
        test::row("a list alone", QByteArray("[" + good + "]"), presets);
    }

    void readsWhatItCan()
    {
        QFETCH(QByteArray, stored);
        Settings settings { QString() };
        QVERIFY(settings.set(SettingKeys::savedAnnotationStyles, stored));
        QTEST(names(SavedStyles(settings).all()), "shown");
    }

    void applyingTouchesOnlyWhatTheCategoryUses()
    {
        Settings settings { QString() };
        AnnotationStore store(blank(), settings);
        SavedStyle style { .category = StyleCategory::Shape, .colorHex = "#010203", .lineWidth = 5, .textSize = 99 };
        style.filled = true;
        ToolStyle expected = store.toolStyle();
        expected.colorHex = style.colorHex;
        expected.lineWidth = 5;
        expected.ellipseFilled = true;
        apply(style, Tool::Ellipse, store);
        QCOMPARE(store.toolStyle(), expected);
        QVERIFY(!store.canUndo());
    }

    void applyingRestylesTheSelectionAsOneStep_data()
    {
        test::columns<AnnotationKind, bool>("kind", "changes");
        test::row("arrow", AnnotationKind::Arrow, true);
        test::row("line: colour and width", AnnotationKind::Line, true);
        test::row("text: colour only", AnnotationKind::Text, true);
        test::row("nothing in common", AnnotationKind::Spotlight, false);
    }

    void applyingRestylesTheSelectionAsOneStep()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(bool, changes);
        Settings settings { QString() };
        AnnotationStore store(blank(), settings);
        const Annotation before(kind, { 1, 1 }, { 9, 9 });
        store.append(before);
        store.setSelectedID(before.id);
        const SavedStyle style { .colorHex = "#010203", .lineWidth = 7, .curved = true, .textSize = 99 };
        apply(style, Tool::Arrow, store);
        apply(style, Tool::Arrow, store); // the second time nothing changes
        Annotation expected = before;
        if (changes)
            expected.colorHex = style.colorHex;
        if (kind == AnnotationKind::Arrow || kind == AnnotationKind::Line)
            expected.lineWidth = 7;
        expected.curved = kind == AnnotationKind::Arrow;
        QCOMPARE(*store.selected(), expected);
        QCOMPARE(store.canUndo(), changes);
        store.undo();
        QCOMPARE(store.annotations(), QList { before });
        QVERIFY(!store.canUndo());
    }
};

QTEST_GUILESS_MAIN(SavedStylesTest)
#include "SavedStylesTest.moc"
