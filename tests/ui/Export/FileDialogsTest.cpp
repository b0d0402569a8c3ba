// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/Settings.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"
#include "ui/Export/DocumentFileDialog.h"
#include "ui/Export/FileDialogParts.h"
#include "ui/Export/FileKinds.h"
#include "ui/Export/FilePreview.h"
#include "ui/Export/SaveImageDialog.h"
#include "ui/Export/WidgetOpenPanels.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

using namespace tessaly;

/// The file dialogs with what Tessaly puts into them.
class FileDialogsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    Settings m_settings { {} };

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Answers the next question with a button, as soon as it is there; counts the questions.
    void answerNext(QMessageBox::StandardButton answer, int &count)
    {
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [timer, answer, &count] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                ++count;
                delete timer;
                box->button(answer)->click();
            }
        });
        timer->start(0);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        QDir(m_folder.path()).mkpath("doc.tessaly/QuickLook");
        QDir(m_folder.path()).mkpath("sub");
        for (const char *name : { "doc.tessaly/document.json", "doc.tessaly/image.png", "there.png" }) {
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void theNameFollowsTheFormat_data()
    {
        test::columns<QString, QString>("name", "renamed");
        test::row("proposed", "Screenshot.png", "Screenshot.jpg");
        test::row("dots", "at 12.30.05.png", "at 12.30.05.jpg");
        test::row("no extension", "mine", "mine.jpg");
        test::row("empty", "", "Screenshot.jpg");
        test::row("extension alone", ".png", "Screenshot.jpg");
        test::row("another spelling", "a.jpeg", "a.jpeg");
    }

    void theNameFollowsTheFormat()
    {
        QFETCH(QString, name);
        SaveImageDialog dialog({ .baseName = "Screenshot", .folder = m_folder.path() }, m_settings, nullptr);
        QLineEdit *field = FileDialogParts::nameField(dialog);
        QCOMPARE(field->text(), "Screenshot.png");
        field->setText(name);
        auto *formats = dialog.findChild<QComboBox *>("format");
        formats->setCurrentIndex(formats->findText("JPEG"));
        QTEST(field->text(), "renamed");
        QCOMPARE(dialog.choice().format, ExportFormat::Jpeg);
    }

    void whatIsTypedIsWhatIsSaved_data()
    {
        test::columns<QString, QString, ExportFormat>("typed", "name", "format");
        test::row("no extension", "a", "a.png", ExportFormat::Png);
        test::row("a date", "12.30.05", "12.30.05.png", ExportFormat::Png);
        test::row("another format", "a.webp", "a.webp", ExportFormat::Webp);
    }

    void whatIsTypedIsWhatIsSaved()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        SaveImageDialog dialog({ .baseName = "Screenshot", .folder = m_folder.path() }, m_settings, nullptr);
        dialog.show();
        QLineEdit *field = FileDialogParts::nameField(dialog);
        field->selectAll();
        QTest::keyClicks(field, typed);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.choice().path, path(name));
        QTEST(dialog.choice().format, "format");
    }

    /// The question is about the file that would be written, with its extension.
    void replacingIsAskedFor_data()
    {
        test::columns<bool, QString, bool>("document", "typed", "replaces");
        test::row("an image, no", false, "there", false);
        test::row("an image, yes", false, "there.png", true);
        test::row("a document, no", true, "doc", false);
        test::row("a document, yes", true, "doc.tessaly", true);
    }

    void replacingIsAskedFor()
    {
        QFETCH(bool, document);
        QFETCH(QString, typed);
        QFETCH(bool, replaces);
        SaveImageDialog image({ .baseName = "Screenshot", .folder = m_folder.path() }, m_settings, nullptr);
        DocumentFileDialog package(DocumentFileDialog::Purpose::Save, nullptr);
        package.setDirectory(m_folder.path());
        QFileDialog &dialog = document ? static_cast<QFileDialog &>(package) : image;
        dialog.show();
        FileDialogParts::nameField(dialog)->setText(typed);
        dialog.grab();
        auto *save = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save);
        QVERIFY2(save->text().contains("Save"), qPrintable(save->text())); // nor "Open" for a document
        int questions = 0;
        answerNext(replaces ? QMessageBox::Yes : QMessageBox::No, questions);
        static_cast<QDialog &>(dialog).accept();
        QCOMPARE(questions, 1);
        QCOMPARE(dialog.result() == QDialog::Accepted, replaces);
        if (document && replaces)
            QCOMPARE(package.chosenPaths(), QStringList(path("doc.tessaly")));
    }

    void aDocumentOpensLikeAFile_data()
    {
        test::columns<QString, QString, bool>("entry", "way", "chosen");
        for (const char *way : { "double click", "Return", "button" }) {
            QTest::addRow("document by %s", way) << "doc.tessaly" << way << true;
            QTest::addRow("picture by %s", way) << "there.png" << way << true;
        }
        test::row("folder by Return", "sub", "Return", false);
        test::row("folder by double click", "sub", "double click", false);
    }

    void aDocumentOpensLikeAFile()
    {
        QFETCH(QString, entry);
        QFETCH(QString, way);
        QFETCH(bool, chosen);
        DocumentFileDialog dialog(DocumentFileDialog::Purpose::Open, nullptr);
        dialog.setViewMode(QFileDialog::List);
        dialog.setDirectory(m_folder.path());
        dialog.show();
        QAbstractItemView *view = FileDialogParts::listView(dialog);
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 3);
        const QModelIndexList found
            = view->model()->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole, entry);
        QCOMPARE(found.size(), 1);
        view->setCurrentIndex(found.first());
        const QPoint at = view->visualRect(found.first()).center();
        if (way == "double click") {
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
        } else if (way == "Return")
            QTest::keyClick(view, Qt::Key_Return);
        else
            static_cast<QDialog &>(dialog).accept();
        QCOMPARE(dialog.chosenPaths(), chosen ? QStringList(path(entry)) : QStringList());
        QCOMPARE(dialog.result() == QDialog::Accepted, chosen);
        QCOMPARE(dialog.directory().dirName() == "sub", !chosen);
    }

    /// Two documents and a picture, as they are selected with Ctrl; the pane beside them shows one alone.
    void severalAreChosenTogether()
    {
        QVERIFY(QDir(m_folder.path()).mkpath("two.tessaly"));
        QVERIFY(QImage(30, 20, QImage::Format_RGB32).save(path("two.tessaly/image.png")));
        DocumentFileDialog dialog(DocumentFileDialog::Purpose::Open, nullptr);
        dialog.setDirectory(m_folder.path());
        dialog.show();
        QAbstractItemView *view = FileDialogParts::listView(dialog);
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 4);
        const auto select = [view](const QString &name) {
            const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
            view->selectionModel()->select(view->model()->match(first, Qt::DisplayRole, name).value(0),
                QItemSelectionModel::Select | QItemSelectionModel::Rows);
        };
        view->setFocus();
        select("two.tessaly");
        auto *pane = dialog.findChild<QWidget *>("filePreview");
        auto *kept = pane->findChild<FileThumbnails *>();
        QVERIFY(kept);
        QTRY_COMPARE(kept->thumbnail(path("two.tessaly")).size(), QSize(30, 20));
        select("doc.tessaly");
        QVERIFY(kept->thumbnail(path("two.tessaly")).isNull()); // given back
        QCOMPARE(pane->findChild<QLabel *>("previewName")->text(), "2 selected");
        select("there.png");
        auto *open = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
        QVERIFY(open->isEnabled());
        open->click();
        QStringList chosen = dialog.chosenPaths();
        chosen.sort();
        QCOMPARE(chosen, QStringList({ path("doc.tessaly"), path("there.png"), path("two.tessaly") }));
        QVERIFY(QDir(path("two.tessaly")).removeRecursively());
    }

    void documentsLookLikeFiles()
    {
        const FileKinds kinds(this);
        const QFileInfo document(path("doc.tessaly")), folder(path("sub"));
        QCOMPARE(kinds.type(document), "Tessaly document");
        QVERIFY(kinds.icon(document).cacheKey() != kinds.icon(folder).cacheKey());
        QVERIFY(kinds.type(folder) != kinds.type(document));
    }

    void picturesAreChosenInTheirOrder_data()
    {
        test::columns<QString, bool, QStringList>("typed", "accepts", "chosen");
        const QString both = QStringLiteral("\x22%1\x22 \x22%2\x22").arg(path("there.png"), path("also.png"));
        test::row("two", both, true, QStringList { path("there.png"), path("also.png") });
        test::row("cancelled", both, false, QStringList());
    }

    void picturesAreChosenInTheirOrder()
    {
        QFETCH(QString, typed);
        QFETCH(bool, accepts);
        QFile also(path("also.png"));
        QVERIFY(also.open(QIODevice::WriteOnly));
        QString filter;
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            answer.stop();
            filter = dialog->nameFilters().first();
            FileDialogParts::nameField(*dialog)->setText(typed);
            accepts ? static_cast<QDialog *>(dialog)->accept() : dialog->reject();
        });
        answer.start(0);
        const auto chosen = WidgetOpenPanels().chooseImages();
        QVERIFY(also.remove());
        QCOMPARE(chosen.has_value(), accepts);
        QTEST(chosen.value_or(QStringList()), "chosen");
        QVERIFY2(
            filter.contains("*.png") && filter.contains("*.webp") && !filter.contains("tessaly"), qPrintable(filter));
    }
};

QTEST_MAIN(FileDialogsTest)
#include "FileDialogsTest.moc"
