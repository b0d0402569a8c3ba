// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/CollageService.h"
#include "tests/support/Rows.h"
#include "tests/ui/Editor/EditorFixture.h"
#include "ui/Editor/EditorWindowController.h"

using namespace tessaly;

class CollageServiceTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QStringList paths(const QStringList &names) const
    {
        QStringList all;
        for (const QString &name : names)
            all += m_folder.filePath(name);
        return all;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const auto &[name, size] : { std::pair("a.png", QSize(40, 20)), std::pair("b.png", QSize(10, 10)) }) {
            QImage image(size, QImage::Format_RGB32);
            image.fill(Qt::black);
            QVERIFY(image.save(m_folder.filePath(name)));
        }
        for (int number = 0; number < 20; ++number) {
            QFile broken(m_folder.filePath(QStringLiteral("broken%1.png").arg(number)));
            QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("none") == 4);
        }
    }

    void chosenPicturesAreJoined_data()
    {
        // failures: files that an alert names
        test::columns<CollageLayout, QStringList, QSize, QStringList>("layout", "names", "size", "failures");
        const QStringList both { "a.png", "b.png" };
        using enum CollageLayout;
        test::row("side by side", SideBySide, both, QSize(40 + 12 + 20, 20), QStringList());
        test::row("stacked", Stacked, both, QSize(40, 20 + 12 + 40), QStringList());
        test::row("the readable ones of them", Stacked, QStringList { "broken1.png", "a.png", "gone.png", "b.png" },
            QSize(40, 72), QStringList { "broken1.png", "gone.png" });
        test::row("none of them", SideBySide, QStringList { "broken2.png" }, QSize(), QStringList { "broken2.png" });
        test::row("nothing", SideBySide, QStringList(), QSize(), QStringList());
    }

    void chosenPicturesAreJoined()
    {
        QFETCH(CollageLayout, layout);
        QFETCH(QStringList, names);
        QFETCH(QStringList, failures);
        test::FakeOpenPanels panels;
        test::FakeWork work;
        test::FakeAlerts alerts;
        QSize size;
        QString title;
        CollageService service({ panels, work, alerts, [&](const RasterImage &image, const QString &named) {
                                    size = image.pixelSize();
                                    title = named;
                                } });
        panels.images = paths(names);
        service.createFromPanel(layout);
        QTEST(size, "size");
        QCOMPARE(title, size.isEmpty() ? QString() : QStringLiteral("Collage"));
        QCOMPARE(alerts.shown.size(), failures.isEmpty() ? 0 : 1);
        for (const QString &name : failures)
            QVERIFY2(alerts.texts.value(0).contains(name), qPrintable(alerts.texts.value(0)));
        QCOMPARE(alerts.texts.value(0).count(u'\n'), std::max<qsizetype>(failures.size() - 1, 0));
    }

    void manyFailuresFitAnAlert()
    {
        test::FakeOpenPanels panels;
        test::FakeWork work;
        test::FakeAlerts alerts;
        CollageService service({ panels, work, alerts, [](const RasterImage &, const QString &) { QFAIL("opened"); } });
        QStringList names;
        for (int number = 0; number < 20; ++number)
            names += QStringLiteral("broken%1.png").arg(number);
        panels.images = paths(names);
        service.createFromPanel(CollageLayout::Stacked);
        QCOMPARE(alerts.shown.size(), 1);
        QCOMPARE(alerts.texts.first().count(u'\n'), 7);
        QVERIFY(alerts.texts.first().contains("13"));
    }

    /// The commands, in a window with everything: each opens an editor of its own with the collage, which is recorded.
    void commandsOpenACapture()
    {
        test::EditorFixture desk;
        EditorWindowController editors(desk.services);
        editors.perform(CommandId::NewCollageStacked); // cancelled
        desk.openPanels.images = paths({ "a.png", "b.png" });
        desk.work.cancels = true;
        editors.perform(CommandId::NewCollageStacked);
        QVERIFY(!editors.hasEditors());
        desk.work.cancels = false;
        for (const CommandId command : { CommandId::NewCollageSideBySide, CommandId::NewCollageStacked }) {
            QVERIFY(editors.canPerform(command));
            editors.perform(command);
        }
        QVERIFY(editors.hasEditors());
        QCOMPARE(desk.alerts.shown, QStringList());
    }
};

QTEST_MAIN(CollageServiceTest)
#include "CollageServiceTest.moc"
