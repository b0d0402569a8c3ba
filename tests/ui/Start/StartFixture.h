// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Desktop/DroppedContent.h"
#include "core/Export/ExportService.h"
#include "core/Export/ImageEncoder.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeRecognition.h"
#include "ui/Start/HistoryGrid.h"
#include "ui/Start/SearchField.h"
#include "ui/Start/StartWindowController.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace tessaly::test {

/// A start window over a history on the disk and stand-ins for the desktop.
class StartFixture {
public:
    QTemporaryDir folder;
    const HistoryStore files { folder.filePath(QStringLiteral("History")) };
    FakeClock clock;
    Settings settings { QString() };
    FakeClipboard clipboard;
    FakeAlerts alerts;
    FakeSavePanels panels;
    FakeSharing sharing;
    FakeLinks links;
    DirectWork work;
    ExportService exports { { settings, clipboard, alerts, panels, sharing, work, clock } };
    CaptureHistory history { { files, settings, clock } };
    QStringList asked; ///< "open", "paste", the title of an entry to open, or what was dropped
    StartWindowController start { { history, settings, clipboard, exports, links, clock },
        { .openFile = [this] { asked += QStringLiteral("open"); },
            .paste = [this] { asked += QStringLiteral("paste"); },
            .openEntry = [this](const QUuid &id) { asked += titleOf(id); },
            .openDropped = [this](const DroppedContent &content) { asked += content.paths; } } };

    /// Puts captures of these titles into the folder, the first the newest: red, with a black mark in the corner.
    QList<HistoryEntry> fill(const QStringList &titles) const
    {
        QList<HistoryEntry> entries;
        if (!files.makeFolder())
            qFatal("the history's folder could not be made");
        for (const QString &title : titles) {
            entries += HistoryEntry { .id = QUuid::createUuid(),
                .title = title,
                .created = clock.time.addSecs(-60 * entries.size()).toUTC(),
                .modified = clock.time.toUTC(),
                .pixelWidth = 40,
                .pixelHeight = 30,
                .recognizedText = QString() };
            if (!files.write(package(), entries.last()))
                qFatal("the history could not be filled");
        }
        if (!files.save(entries))
            qFatal("the index could not be written");
        return entries;
    }

    void load()
    {
        history.load();
        while (!history.isLoaded())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    static QWidget *window()
    {
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (each->objectName() == u"startWindow")
                return each;
        }
        return nullptr;
    }
    template <class Part>
    static Part *part(const char *name = "")
    {
        return window()->findChild<Part *>(QLatin1StringView(name));
    }
    static HistoryGrid &grid() { return *part<HistoryGrid>("historyGrid"); }
    static SearchField &search() { return *part<SearchField>("search"); }

    /// The titles that the grid shows.
    static QStringList shown()
    {
        QStringList titles;
        for (int row = 0; row < grid().model()->rowCount(); ++row)
            titles += grid().model()->index(row, 0).data().toString();
        return titles;
    }
    static QString current() { return grid().currentIndex().data().toString(); }

    /// The texts of all labels that can be seen.
    static QStringList texts()
    {
        QStringList texts;
        for (const QLabel *label : window()->findChildren<QLabel *>()) {
            if (label->isVisible() && !label->text().isEmpty())
                texts += label->text();
        }
        return texts;
    }

    QStringList titlesInHistory() const
    {
        QStringList titles;
        for (const HistoryEntry &entry : history.entries())
            titles += entry.title;
        return titles;
    }

    static TessalyDocument::Package package()
    {
        QImage pixels(40, 30, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        AnnotationDocument document;
        document.canvasSize = QSizeF(pixels.size());
        document.pixelSize = QSizeF(pixels.size());
        Annotation mark;
        mark.kind = AnnotationKind::Rectangle;
        mark.filled = true;
        mark.colorHex = QStringLiteral("#000000");
        mark.p1 = { 0, 0 };
        mark.p2 = { 20, 15 };
        document.annotations = { mark };
        const auto png = encodeImage(RasterImage::fromPixels(pixels), ExportFormat::Png, {});
        auto made = TessalyDocument::package(document, *png, *png);
        return std::move(*made);
    }

private:
    QString titleOf(const QUuid &id) const
    {
        for (const HistoryEntry &entry : history.entries()) {
            if (entry.id == id)
                return entry.title;
        }
        return {};
    }
};

} // namespace tessaly::test
