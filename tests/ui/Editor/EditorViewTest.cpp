// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/EditorFixture.h"
#include "ui/Editor/Dialogs/ResizeDialog.h"
#include "ui/Editor/Dialogs/SharpenDialog.h"
#include "ui/Editor/EditorStatus.h"
#include "ui/Editor/Options/OptionsBar.h"
#include "ui/Editor/ToolSidebar.h"

#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

using namespace tessaly;
using namespace tessaly::test;

class EditorViewTest : public QObject {
    Q_OBJECT

    static QString text(const EditorView &view, const char *name)
    {
        return view.findChild<QLabel *>(QLatin1StringView(name))->text();
    }

private Q_SLOTS:
    void copyPutsThePictureOnTheClipboard()
    {
        EditorFixture fixture;
        const auto view = fixture.makeView();
        int exported = 0;
        fixture.exports.exported = [&] { ++exported; };
        view->store().beginChange();
        view->perform(CommandId::CopyImage);
        QVERIFY(fixture.clipboard.types().contains(QStringLiteral("image/png")));
        QCOMPARE(QImage::fromData(fixture.clipboard.data(QStringLiteral("image/png"))).size(), QSize(400, 300));
        QCOMPARE(text(*view, "statusMessage"), QStringLiteral("Copied to clipboard"));
        QVERIFY(!view->store().hasUnsavedChanges());
        QCOMPARE(exported, 1);
    }

    void saveAndExportAskForThePlace_data()
    {
        QTest::addColumn<CommandId>("command");
        QTest::addColumn<std::optional<ExportFormat>>("format"); // chosen in the menu beside Save
        QTest::addColumn<QString>("file");
        using Format = std::optional<ExportFormat>;
        QTest::newRow("save") << CommandId::Save << Format() << "a.png";
        QTest::newRow("as a format") << CommandId::ExportAs << Format(ExportFormat::Jpeg) << "b.jpg";
        QTest::newRow("as a document") << CommandId::SaveAsDocument << Format() << "c.tessaly";
    }

    void saveAndExportAskForThePlace()
    {
        QFETCH(CommandId, command);
        QFETCH(std::optional<ExportFormat>, format);
        QFETCH(QString, file);
        EditorFixture fixture;
        const auto view = fixture.makeView();
        const QString path = fixture.folder.filePath(file);
        view->store().beginChange();
        if (command == CommandId::SaveAsDocument)
            fixture.panels.document = path;
        else
            fixture.panels.image = SavePanels::ImageChoice { path, format.value_or(ExportFormat::Png) };
        if (format)
            view->exportAs(*format);
        else
            view->perform(command);
        QVERIFY(QFile::exists(path));
        QVERIFY(!view->store().hasUnsavedChanges());
        QCOMPARE(text(*view, "statusMessage"), QStringLiteral("Saved"));
        if (format)
            QCOMPARE(fixture.panels.imageRequests.first().format, *format);
    }

    void aCancelledSaveChangesNothing()
    {
        EditorFixture fixture;
        const auto view = fixture.makeView();
        view->store().beginChange();
        view->perform(CommandId::Save);
        QVERIFY(view->store().hasUnsavedChanges());
        QCOMPARE(text(*view, "statusMessage"), QString());
    }

    void imageEditsAreOneStepEach_data()
    {
        QTest::addColumn<CommandId>("command");
        QTest::addColumn<QSize>("size");
        QTest::newRow("left") << CommandId::RotateCounterclockwise << QSize(300, 400);
        QTest::newRow("right") << CommandId::RotateClockwise << QSize(300, 400);
        QTest::newRow("across") << CommandId::FlipHorizontal << QSize(400, 300);
        QTest::newRow("down") << CommandId::FlipVertical << QSize(400, 300);
        QTest::newRow("resize") << CommandId::ResizeImage << QSize(200, 150);
        QTest::newRow("sharpen") << CommandId::Sharpen << QSize(400, 300);
    }

    void imageEditsAreOneStepEach()
    {
        QFETCH(CommandId, command);
        QFETCH(QSize, size);
        EditorFixture fixture;
        const auto view = fixture.makeView();
        QImage uneven = view->store().image().pixels.copy();
        uneven.setPixel(5, 7, qRgb(255, 0, 0));
        view->store().setImage(RasterImage::fromPixels(uneven, 2));
        const auto perform = [&] {
            view->perform(command);
            if (auto *dialog = view->findChild<QDialog *>()) {
                QCOMPARE(view->store().isResizing(), command == CommandId::ResizeImage);
                QCOMPARE(view->store().isSharpening(), command == CommandId::Sharpen);
                if (auto *width = dialog->findChild<QSpinBox *>(QStringLiteral("width")))
                    width->setValue(200);
                dialog->accept();
            }
            QVERIFY(!view->store().isResizing() && !view->store().isSharpening());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        fixture.work.cancels = true;
        perform();
        QVERIFY(!view->store().canUndo()); // the user cancelled
        fixture.work.cancels = false;
        perform();
        QCOMPARE(fixture.work.titles.size(), 2);
        QCOMPARE(view->store().pixelDimensions(), size);
        QVERIFY(view->store().image().pixels != uneven);
        view->perform(CommandId::Undo);
        QCOMPARE(view->store().image().pixels, uneven);
        QVERIFY(!view->canPerform(CommandId::Undo));
    }

    void statusFollowsPictureAndZoom()
    {
        EditorFixture fixture;
        const auto view = fixture.makeView();
        QCOMPARE(text(*view, "documentSize"), QStringLiteral("400 × 300 px · 144 dpi"));
        view->perform(CommandId::RotateClockwise);
        QCOMPARE(text(*view, "documentSize"), QStringLiteral("300 × 400 px · 144 dpi"));
        view->perform(CommandId::ActualSize);
        view->perform(CommandId::ZoomIn);
        QCOMPARE(text(*view, "zoom"), QStringLiteral("125 %"));
    }

    void toolsAreChosenAndShown()
    {
        EditorFixture fixture;
        const auto view = fixture.makeView();
        const auto buttons = view->findChild<ToolSidebar *>()->findChildren<QToolButton *>();
        QCOMPARE(buttons.size(), qsizetype(enumNames<Tool>.size()));
        QCOMPARE(buttons[int(Tool::Arrow)]->toolTip(), QStringLiteral("Arrow (A)"));
        buttons[int(Tool::Arrow)]->click();
        QCOMPARE(view->store().tool(), Tool::Arrow);
        QTest::keyClick(buttons[int(Tool::Arrow)], Qt::Key_Down);
        QCOMPARE(view->store().tool(), Tool::Text);
        view->store().activate(Tool::Frame); // by a key on the canvas
        QVERIFY(buttons[int(Tool::Frame)]->isChecked());
        QTest::keyClick(buttons[int(Tool::Frame)], Qt::Key_Down); // around
        QCOMPARE(view->store().tool(), Tool::Select);
    }

    void textIsReadWithoutWhatIsHidden_data()
    {
        QTest::addColumn<std::optional<AnnotationKind>>("kind"); // of a mark over the left half
        QTest::addColumn<bool>("hides");
        using Kind = std::optional<AnnotationKind>;
        QTest::newRow("no mark") << Kind() << false;
        QTest::newRow("a mark beside the text") << Kind(AnnotationKind::Highlight) << false;
        QTest::newRow("an obscured area") << Kind(AnnotationKind::Pixelate) << true;
    }

    void textIsReadWithoutWhatIsHidden()
    {
        QFETCH(std::optional<AnnotationKind>, kind);
        QFETCH(bool, hides);
        EditorFixture fixture;
        const auto view = fixture.makeView();
        if (kind) {
            Annotation mark(*kind, { 0, 0 }, { 100, 150 });
            mark.obscure = ObscureStyle::Solid;
            view->store().append(mark);
        }
        view->perform(CommandId::CopyTextFromImage);
        const RasterImage read = fixture.recognizer.pending.first()->request.image;
        QCOMPARE(read.pointSize, QSizeF(200, 150));
        QCOMPARE(read.pixels.pixelColor(50, 50) != Qt::gray, hides);
        QCOMPARE(read.pixels.pixelColor(350, 50), QColor(Qt::gray));
        fixture.recognizer.answer(RecognizedContent { { { QStringLiteral("words"), {} } }, {} });
        QCOMPARE(fixture.clipboard.data(QStringLiteral("text/plain")), QByteArray("words"));
        QCOMPARE(fixture.toasts.shown, QStringList { QStringLiteral("Text copied to clipboard") });
        QVERIFY(!view->store().hasUnsavedChanges());
        fixture.recognizer.supported = false;
        view->perform(CommandId::CopyTextFromImage);
        QVERIFY(fixture.recognizer.pending.isEmpty());
        QCOMPARE(text(*view, "statusMessage"), QStringLiteral("Live Text isn't available on this Mac"));
    }

    void optionsBarFollowsTheSetting()
    {
        EditorFixture fixture;
        const auto view = fixture.makeView();
        QVERIFY(!view->optionsBar().isHidden());
        QVERIFY(fixture.settings.set(SettingKeys::showOptionsBar, false));
        view->followSettings();
        QVERIFY(view->optionsBar().isHidden());
    }
};

QTEST_MAIN(EditorViewTest)
#include "EditorViewTest.moc"
