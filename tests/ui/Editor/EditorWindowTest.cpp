// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorWindow.h"
#include "core/Desktop/DroppedContent.h"
#include "tests/ui/Editor/EditorFixture.h"
#include "ui/Editor/Canvas/CanvasView.h"
#include "ui/Editor/EditorToolBar.h"
#include "ui/Editor/Options/MenuButton.h"
#include "ui/Editor/Options/OptionsBar.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

using namespace tessaly;
using namespace tessaly::test;

class EditorWindowTest : public QObject {
    Q_OBJECT

    /// The program's part, which only remembers.
    class FakeProgram final : public CommandTarget {
    public:
        QList<CommandId> performed;
        bool knows(CommandId command) const override { return command == CommandId::NewTab; }
        bool canPerform(CommandId) const override { return true; }
        void perform(CommandId command) override { performed += command; }
    };

    struct Fixture : EditorFixture {
        FakeProgram program;
        EditorWindow *window = new EditorWindow(services, program); // deletes itself when it is closed
        QPointer<EditorWindow> guard { window };

        EditorView *add(const QString &title, QSize pixels = { 400, 300 })
        {
            window->addEditor(makeView(pixels), title);
            return window->currentEditor();
        }
        ~Fixture() { delete guard; }
    };

    static bool isControl(const QWidget *widget)
    {
        const bool is = qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget)
            || qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSlider *>(widget)
            || qobject_cast<const QAbstractSpinBox *>(widget);
        // Parts of Qt's own controls are named through these.
        const bool isPart = widget->objectName().startsWith(u"qt_") || qobject_cast<const QScrollBar *>(widget)
            || qobject_cast<const CanvasView *>(widget->parentWidget()) // scroll bars for the pointer alone
            || qobject_cast<const QAbstractSpinBox *>(widget->parentWidget())
            || qobject_cast<const QComboBox *>(widget->parentWidget())
            || qobject_cast<const QTabBar *>(widget->parentWidget())
            || qobject_cast<const QMenuBar *>(widget->parentWidget());
        return is && !isPart;
    }

private Q_SLOTS:
    void tabsAppearWithTheSecondCapture()
    {
        Fixture fixture;
        EditorView *first = fixture.add(QStringLiteral("a.png"));
        auto *bar = fixture.window->findChild<QTabBar *>();
        fixture.window->show();
        QVERIFY(!bar->isVisible());
        EditorView *second = fixture.add(QStringLiteral("b.png"));
        QVERIFY(bar->isVisible());
        QCOMPARE(fixture.window->currentEditor(), second);
        QCOMPARE(fixture.window->editors(), QList<EditorView *>({ first, second }));
        bar->moveTab(0, 1);
        QCOMPARE(fixture.window->editors(), QList<EditorView *>({ second, first }));
        fixture.window->activate(first);
        QCOMPARE(fixture.window->windowTitle(), QStringLiteral("a.png[*] — Tessaly"));
        first->store().beginChange();
        QVERIFY(fixture.window->isWindowModified());
        QCOMPARE(bar->tabText(1), QStringLiteral("● a.png"));
        fixture.window->activate(second);
        QVERIFY(!fixture.window->isWindowModified());
        fixture.window->setEditorTitle(second, QStringLiteral("R&D.tessaly"));
        QCOMPARE(fixture.window->windowTitle(), QStringLiteral("R&D.tessaly[*] — Tessaly"));
    }

    void aToolLendsItsKeyToPastingAStyle()
    {
        Fixture fixture;
        EditorView *editor = fixture.add(QStringLiteral("a"));
        AnnotationStore &store = editor->store();
        for (const char *color : { "#111111", "#222222" }) {
            store.append(Annotation(AnnotationKind::Line, { 10, 10 }, { 90, 90 }));
            store.setSelectedID(store.annotations().last().id);
            store.updateSelection(Undo::Skip, [&](Annotation &mark) { mark.colorHex = QLatin1StringView(color); });
        }
        fixture.window->show();
        fixture.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fixture.window));
        editor->canvas().setFocus();
        const auto press
            = [&](Qt::Key key) { QTest::keyClick(&editor->canvas(), key, Qt::ControlModifier | Qt::AltModifier); };
        press(Qt::Key_R);
        QCOMPARE(store.tool(), Tool::Rectangle);
        press(Qt::Key_V); // nothing to paste
        QCOMPARE(store.tool(), Tool::Select);
        store.setSelectedID(store.annotations().first().id);
        press(Qt::Key_C);
        store.setSelectedID(store.annotations().last().id);
        press(Qt::Key_V);
        QCOMPARE(store.annotations().last().colorHex, QStringLiteral("#111111"));
        press(Qt::Key_R);
        press(Qt::Key_V); // nothing is selected
        QCOMPARE(store.tool(), Tool::Select);
    }

    void closingAsksFirst()
    {
        Fixture fixture;
        EditorView *first = fixture.add(QStringLiteral("a"));
        EditorView *second = fixture.add(QStringLiteral("b"));
        fixture.window->show();
        QSignalSpy asked(fixture.window, &EditorWindow::closeRequested);
        QVERIFY(!fixture.window->close());
        QCOMPARE(asked.takeFirst().first().value<QList<EditorView *>>(), QList<EditorView *>({ first, second }));
        Q_EMIT fixture.window->findChild<QTabBar *>()->tabCloseRequested(0);
        QCOMPARE(asked.takeFirst().first().value<QList<EditorView *>>(), QList<EditorView *> { first });
        fixture.window->removeEditor(first);
        QVERIFY(fixture.window->isVisible());
        fixture.window->removeEditor(second);
        QVERIFY(!fixture.window->isVisible());
        QTRY_VERIFY(!fixture.guard);
    }

    void chromeIsAsHighAsItSays_data()
    {
        QTest::addColumn<bool>("options");
        QTest::addColumn<int>("height");
        QTest::newRow("with the options bar") << true << 122;
        QTest::newRow("without") << false << 77;
    }

    void chromeIsAsHighAsItSays()
    {
        QFETCH(bool, options);
        QFETCH(int, height);
        Fixture fixture;
        QVERIFY(fixture.settings.set(SettingKeys::showOptionsBar, options));
        EditorView *view = fixture.add(QStringLiteral("a"));
        fixture.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(fixture.window));
        QCOMPARE(fixture.window->chromeHeight(), height);
        const int menuHeight = fixture.window->menuBar()->height();
        for (const auto &row : enumNames<Tool>) {
            view->store().activate(row.value);
            QCoreApplication::processEvents();
            QCOMPARE(view->canvas().mapTo(fixture.window, QPoint()).y() - menuHeight, height);
        }
    }

    void liveTextIsSwitchedForAllTabs()
    {
        Fixture fixture;
        fixture.add(QStringLiteral("a"));
        EditorView *view = fixture.add(QStringLiteral("b"));
        fixture.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(fixture.window));
        const auto action = [&](const QString &title) {
            for (QAction *each : fixture.window->findChildren<QAction *>())
                if (each->text() == title)
                    return each;
            return static_cast<QAction *>(nullptr);
        };
        QVERIFY(action(QStringLiteral("Show Live Text")));
        action(QStringLiteral("Show Live Text"))->trigger();
        QVERIFY(fixture.settings.value(SettingKeys::liveTextEnabled));
        QTRY_COMPARE(fixture.recognizer.pending.size(), 1); // the tab that is seen
        fixture.window->activate(fixture.window->editors().first());
        QTRY_COMPARE(fixture.recognizer.pending.size(), 2);
        QVERIFY(action(QStringLiteral("Hide Live Text")));
        action(QStringLiteral("Hide Live Text"))->trigger();
        QCOMPARE(fixture.recognizer.cancelled, 2);
        QVERIFY(!view->canvas().isVisible());
    }

    void theWindowFitsTheCapture()
    {
        Fixture fixture;
        EditorView *view = fixture.add(QStringLiteral("a"), { 1000, 800 });
        fixture.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(fixture.window));
        const QSize screen = fixture.window->screen()->availableSize();
        QVERIFY(fixture.window->width() <= screen.width() && fixture.window->height() <= screen.height());
        QVERIFY(view->canvas().width() >= 500 && view->canvas().height() >= 400);
    }

    void everyControlHasANameATooltipAndTheFocus()
    {
        Fixture fixture;
        EditorView *view = fixture.add(QStringLiteral("a"));
        fixture.add(QStringLiteral("b"));
        fixture.window->activate(view);
        fixture.window->show();
        int controls = 0;
        QStringList faulty;
        for (const QWidget *widget : fixture.window->findChildren<QWidget *>()) {
            if (!isControl(widget))
                continue;
            ++controls;
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const QString name
                = widget->accessibleName().isEmpty() && button ? button->text() : widget->accessibleName();
            const bool isMirror
                = widget->focusPolicy() == Qt::NoFocus && widget->parentWidget()->findChild<MenuButton *>();
            const bool focusable = (widget->focusPolicy() & Qt::TabFocus) || isMirror;
            if (name.isEmpty() || widget->toolTip().isEmpty() || !focusable)
                faulty += QStringLiteral("%1 %2 '%3' '%4'")
                              .arg(QLatin1StringView(widget->metaObject()->className()), widget->objectName(), name,
                                  widget->toolTip());
        }
        QVERIFY(controls > 150);
        QVERIFY2(faulty.isEmpty(), qPrintable(faulty.join(u'\n')));
    }

    void theSaveMenuPicksTheFormat()
    {
        Fixture fixture;
        fixture.add(QStringLiteral("a"));
        auto *save = fixture.window->findChild<QWidget *>(QStringLiteral("save"));
        const auto halves = save->findChildren<QToolButton *>();
        QCOMPARE(halves.size(), 2);
        QCOMPARE(halves[1]->accessibleName(), QStringLiteral("Save format"));
        QStringList titles;
        for (const QAction *action : halves[1]->menu()->actions())
            titles += action->text();
        QCOMPARE(titles.join(u'|'), QStringLiteral("PNG|JPEG|WebP|PDF|TIFF|GIF|BMP||Save as Tessaly Document…"));
        halves[1]->menu()->actions().at(2)->trigger();
        QCOMPARE(fixture.panels.imageRequests.value(0).format, ExportFormat::Webp);
    }

    void shareIsThereOnlyWhereItWorks()
    {
        for (const bool available : { true, false }) {
            EditorFixture services;
            services.sharing.available = available;
            FakeProgram program;
            EditorWindow window(services.services, program);
            window.setAttribute(Qt::WA_DeleteOnClose, false);
            int buttons = 0;
            for (const auto *button : window.findChildren<QToolButton *>())
                buttons += button->accessibleName() == u"Share";
            QCOMPARE(buttons, available ? 1 : 0);
        }
    }

    void commandsGoToEditorWindowOrProgram()
    {
        Fixture fixture;
        EditorView *view = fixture.add(QStringLiteral("a"));
        const auto trigger = [&](const QString &text) {
            for (QAction *action : fixture.window->findChildren<QAction *>()) {
                if (action->text() == text && action->isEnabled())
                    return action->trigger(), true;
            }
            return false;
        };
        const auto undoButton = [&] {
            const auto buttons = fixture.window->findChildren<QToolButton *>();
            return *std::ranges::find(buttons, QStringLiteral("Undo"), &QWidget::accessibleName);
        };
        QVERIFY(!undoButton()->isEnabled());
        QVERIFY(trigger(QStringLiteral("New Tab")));
        QCOMPARE(fixture.program.performed, QList<CommandId> { CommandId::NewTab });
        QVERIFY(trigger(QStringLiteral("Rotate Clockwise")));
        QCOMPARE(view->store().pixelDimensions(), QSize(300, 400));
        QVERIFY(undoButton()->isEnabled());
        QCOMPARE(undoButton()->text(), QStringLiteral("Undo"));
        QVERIFY(!trigger(QStringLiteral("Open…"))); // known to nobody
        QVERIFY(trigger(QStringLiteral("Hide Options Bar")));
        QVERIFY(view->optionsBar().isHidden());
        QCOMPARE(fixture.window->chromeHeight(), 77);
        QVERIFY(trigger(QStringLiteral("Show Options Bar")));
        QVERIFY(!view->optionsBar().isHidden());
    }

    void droppedFilesAreOpened()
    {
        Fixture fixture;
        fixture.add(QStringLiteral("a"));
        DroppedContent taken;
        connect(fixture.window, &EditorWindow::dropped, this, [&](const DroppedContent &content) { taken = content; });
        QMimeData data;
        data.setUrls(
            { QUrl(QStringLiteral("https://example.org/x.png")), QUrl::fromLocalFile(QStringLiteral("/x/y.tessaly")) });
        QDragEnterEvent enter({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(fixture.window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({ 5, 5 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(fixture.window, &drop);
        QTRY_COMPARE(taken.paths, QStringList { QStringLiteral("/x/y.tessaly") });
        QVERIFY(taken.hasLinks);
    }
};

QTEST_MAIN(EditorWindowTest)
#include "EditorWindowTest.moc"
