// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkCommands.h"
#include "OptionsFixture.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"
#include "ui/Editor/Options/OverflowRow.h"
#include "ui/Editor/Options/StyleMenu.h"
#include "ui/Editor/Options/ValueSlider.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>

using namespace tessaly;
using namespace tessaly::test;

class OptionsBarTest : public QObject {
    Q_OBJECT

    struct Fixture : OptionsFixture {
        Annotation &select(AnnotationKind kind)
        {
            Annotation mark(kind, { 20, 20 }, { 120, 80 });
            mark.lineWidth = 10;
            store.setAnnotations({ mark });
            store.setSelectedID(mark.id);
            last = mark;
            return last;
        }
        Annotation last;

        QStringList shown() const
        {
            QStringList names;
            for (const QWidget *widget : const_cast<OptionsBar &>(bar).row().shown()) {
                const QWidget *named = widget->objectName().isEmpty() ? widget->findChild<QComboBox *>() : widget;
                names += named->objectName();
            }
            return names;
        }
    };

    static QStringList words(const char *text) { return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts); }

private Q_SLOTS:
    void aSelectedMarkHasTheOptionsThatItUses_data()
    {
        using Kind = AnnotationKind;
        test::columns<AnnotationKind, QString>("kind", "names");
        const auto row = [](Kind kind, const char *names) { QTest::newRow(rawValue(kind).data()) << kind << names; };
        row(Kind::Arrow, "color lineWidth arrowHead arrowCurved arrowDoubleHeaded savedStyles");
        row(Kind::Text, "color textSize textBold textItalic textFont savedStyles");
        row(Kind::Rectangle, "color lineWidth rectFilled savedStyles");
        row(Kind::Ellipse, "color lineWidth ellipseFilled savedStyles");
        row(Kind::Line, "color lineWidth");
        row(Kind::Highlight, "color highlightOpacity");
        row(Kind::Pixelate, "obscureStyle obscureStrength");
        row(Kind::Stamp, "stampKind color stampDisc stampTail stampLabel");
        row(Kind::Pen, "color lineWidth");
        row(Kind::Spotlight, "spotDim spotEllipse");
        row(Kind::Sticker, "stickerEmoji");
        row(Kind::ImageOverlay, "chooseImage");
        row(Kind::Magnifier, "magnifierZoom magnifierRound");
    }

    void aSelectedMarkHasTheOptionsThatItUses()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(QString, names);
        Fixture fixture;
        fixture.select(kind);
        QCOMPARE(fixture.shown(), names.split(u' '));

        // The tool shows the same, but for what one mark alone has.
        fixture.store.activate(toolOf(kind));
        QStringList ofTool = names.split(u' ');
        ofTool.removeIf([](const QString &name) {
            return QStringList { QStringLiteral("stampDisc"), QStringLiteral("stampTail"),
                QStringLiteral("stampLabel") }
                .contains(name);
        });
        QCOMPARE(fixture.shown(), ofTool);
    }

    void toolsWithoutMarksHaveTheirOwn()
    {
        Fixture fixture;
        QCOMPARE(fixture.shown(), QStringList());
        fixture.store.activate(Tool::Crop);
        QCOMPARE(fixture.shown(), words("cropAspect cropSize cropLock cropCancel cropApply"));
        fixture.store.activate(Tool::Frame);
        QCOMPARE(fixture.shown(),
            words("frameOn frameBackground framePadding frameCorners frameShadow frameAspect watermark "
                  "frameApplyAlways"));
    }

    void neverShowsAMarkThatIsGone_data()
    {
        QTest::addColumn<std::function<void(AnnotationStore &)>>("act");
        using Act = std::function<void(AnnotationStore &)>;
        test::row("deleted", Act([](AnnotationStore &store) { store.deleteSelected(); }));
        test::row("deselected", Act([](AnnotationStore &store) { store.setSelectedID({}); }));
        test::row("undone", Act([](AnnotationStore &store) { store.undo(); }));
        test::row("gone with all marks", Act([](AnnotationStore &store) { store.setAnnotations({}); }));
    }

    void neverShowsAMarkThatIsGone()
    {
        QFETCH(std::function<void(AnnotationStore &)>, act);
        Fixture fixture;
        fixture.store.beginChange();
        fixture.select(AnnotationKind::Stamp);
        QVERIFY(!fixture.shown().isEmpty());
        act(fixture.store);
        QCOMPARE(fixture.shown(), QStringList());
    }

    void aSlidersDragIsOneUndoStep()
    {
        Fixture fixture;
        const Annotation before = fixture.select(AnnotationKind::Rectangle);
        QSlider &slider = fixture.slider("lineWidth");
        slider.setSliderDown(true);
        for (const int tick : { 12, 20, 30 })
            slider.setValue(tick);
        slider.setSliderDown(false);
        QCOMPARE(fixture.store.selected()->lineWidth, 31.0);
        QCOMPARE(fixture.store.toolStyle().lineWidth, 31.0); // and of marks to come
        slider.setValue(40); // another change
        fixture.store.undo();
        QCOMPARE(fixture.store.annotations().first().lineWidth, 31.0);
        fixture.store.undo();
        QCOMPARE(fixture.store.annotations().first(), before);
        QVERIFY(!fixture.store.canUndo());
    }

    void showingAndChoosingTheSameChangesNothing()
    {
        Fixture fixture;
        Annotation &mark = fixture.select(AnnotationKind::Rectangle);
        mark.lineWidth = 400; // beyond the slider
        mark.colorHex = QStringLiteral("#FF3366");
        fixture.store.setAnnotations({ mark });
        QCOMPARE(fixture.control<ValueSlider>("lineWidth").value(), 400.0);
        fixture.control("color").findChild<QAbstractButton *>()->click(); // the first, in use already
        QCOMPARE(fixture.store.annotations().first(), mark);
        QVERIFY(!fixture.store.canUndo());
        QVERIFY(!fixture.store.hasUnsavedChanges());
    }

    void typingACaptionIsOneUndoStep()
    {
        Fixture fixture;
        fixture.select(AnnotationKind::Stamp);
        fixture.bar.resize(1600, OptionsBar::standardHeight);
        fixture.bar.show();
        auto &field = fixture.control<QLineEdit>("stampLabel");
        fixture.bar.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&fixture.bar));
        field.setFocus();
        QVERIFY(field.hasFocus());
        QTest::keyClicks(&field, QStringLiteral("abc"));
        QCOMPARE(fixture.store.selected()->stampLabel, QStringLiteral("abc"));
        fixture.store.undo();
        QCOMPARE(fixture.store.annotations().first().stampLabel, QString());
        QVERIFY(!fixture.store.canUndo());
    }

    void aNarrowBarKeepsEveryControl()
    {
        Fixture fixture;
        fixture.select(AnnotationKind::Text);
        fixture.bar.show();
        for (const int width : { 1600, 500, 300, 1600 }) {
            fixture.bar.resize(width, OptionsBar::standardHeight);
            QCoreApplication::processEvents();
            int right = 0, inPanel = 0;
            for (QWidget *control : fixture.bar.row().shown()) {
                if (fixture.bar.row().isInPanel(control)) {
                    ++inPanel;
                    continue;
                }
                QVERIFY2(!inPanel, "a control follows one that had no room");
                QVERIFY(control->geometry().left() >= right);
                QVERIFY(control->width() >= control->sizeHint().width());
                right = control->geometry().right();
            }
            QVERIFY(right < width);
            QCOMPARE(inPanel > 0, width < 1600);
            QCOMPARE(fixture.bar.row().moreButton().isVisible(), inPanel > 0);
        }
    }

    void savedStylesAreOfferedAndKept()
    {
        Settings settings { QString() };
        SavedStyles styles(settings);
        AnnotationStore store(RasterImage::fromPixels(QImage(40, 30, QImage::Format_RGB32)), settings);
        QStringList asked;
        StyleMenu styleMenu(store, styles, [&](const QString &title, const QString &button, const QString &proposal) {
            asked += { title, button, proposal };
            return std::optional(QStringLiteral("Mine & yours"));
        });
        const auto titles = [&] {
            QMenu menu;
            styleMenu.fill(menu);
            QStringList list;
            for (const QAction *action : menu.actions())
                list += action->text().section(u'\t', 0, 0);
            return list;
        };
        const QStringList commands { QString(), QStringLiteral("Save Style…"), QStringLiteral("Rename"),
            QStringLiteral("Delete"), QString(), QStringLiteral("Restore Default Styles") };

        store.activate(Tool::Ellipse);
        QCOMPARE(titles(), QStringList({ QStringLiteral("Pink Frame"), QStringLiteral("Thin Blue Frame") }) + commands);
        styleMenu.save();
        QCOMPARE(
            asked, QStringList({ QStringLiteral("Save Style"), QStringLiteral("Save"), QStringLiteral("Style 3") }));
        QCOMPARE(titles().value(2), QStringLiteral("Mine && yours"));
        for (const SavedStyle &style : styles.styles(Tool::Ellipse))
            QVERIFY(styles.remove(style.id));
        QCOMPARE(titles(), QStringList { QStringLiteral("No saved styles") } + commands);
    }

    void aStyleRestylesTheSelectedMark()
    {
        Fixture fixture;
        const Annotation before = fixture.select(AnnotationKind::Arrow);
        QMenu menu;
        fixture.bar.styleMenu().fill(menu);
        menu.actions().at(1)->trigger(); // "Thin Blue"
        QCOMPARE(fixture.store.selected()->colorHex, QStringLiteral("#2E7DF6"));
        QCOMPARE(fixture.store.selected()->arrowHead, ArrowHeadStyle::Open);
        fixture.store.undo();
        QCOMPARE(fixture.store.annotations().first(), before);
    }

    void cropSizeFollowsRatioAndPicture_data()
    {
        // aspect: index in the list; width: typed
        test::columns<int, bool, int, QRectF>("aspect", "lock", "width", "result");
        test::row("free", 0, false, 100, QRectF(0, 0, 100, 300));
        test::row("locked to 4:3, its present ratio", 0, true, 100, QRectF(0, 0, 100, 75));
        test::row("square", 1, false, 120, QRectF(50, 0, 120, 120));
        test::row("square, wider than the picture is high", 1, false, 400, QRectF(50, 0, 300, 300));
    }

    void cropSizeFollowsRatioAndPicture()
    {
        QFETCH(int, aspect);
        QFETCH(bool, lock);
        QFETCH(int, width);
        Fixture fixture;
        fixture.store.activate(Tool::Crop);
        auto &aspects = fixture.control<QComboBox>("cropAspect");
        aspects.setCurrentIndex(aspect);
        Q_EMIT aspects.activated(aspect);
        if (lock)
            fixture.control<QToolButton>("cropLock").click();
        fixture.control("cropSize").findChild<QSpinBox *>()->setValue(width);
        QTEST(fixture.store.cropRect(), "result");
        QVERIFY(!fixture.store.canUndo());
    }
};

QTEST_MAIN(OptionsBarTest)
#include "OptionsBarTest.moc"
