// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/DocumentActions.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Desktop/Alerts.h"
#include "core/Document/RecentDocuments.h"
#include "core/Document/TessalyDocument.h"
#include "core/Export/FlattenService.h"
#include "core/Preferences/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tessaly {

namespace {

/// Where an exported image's document goes: beside it, under its name.
QString companionPath(const QString &imagePath)
{
    const QFileInfo image(imagePath);
    return image.dir().filePath(image.completeBaseName() + QStringLiteral(".tessaly"));
}

bool isDocumentOf(const AnnotationStore &store, const QString &path)
{
    const auto &url = store.documentURL();
    return url && QDir::cleanPath(url->toLocalFile()) == QDir::cleanPath(path);
}

} // namespace

/// A capture as it is when a save begins. What is written is this, whatever happens to the capture meanwhile.
struct DocumentActions::Moment {
    explicit Moment(const AnnotationStore &store) :
        content(store.currentSnapshot()),
        source(TessalyDocument::source(store))
    {
    }

    /// Marks the capture as saved, unless it has changed since.
    void markSaved(AnnotationStore &store) const
    {
        if (store.currentSnapshot() == content)
            store.setHasUnsavedChanges(false);
    }

    Snapshot content;
    TessalyDocument::Source source;
};

DocumentActions::DocumentActions(const Surroundings &surroundings) : m_surroundings(surroundings) { }

bool DocumentActions::exportImage(AnnotationStore &store, std::optional<ExportFormat> format)
{
    const Moment moment(store);
    const auto image = flattened(moment.source.finished);
    if (!image)
        return false;
    const auto writeDocument
        = [this, &store, &moment](const QString &imagePath) { writeCompanion(store, moment, imagePath); };
    if (!m_surroundings.exports.save(*image, format.value_or(storedFormat(m_surroundings.settings)), writeDocument))
        return false;
    if (store.currentSnapshot() == moment.content)
        store.markExported();
    return true;
}

bool DocumentActions::save(AnnotationStore &store)
{
    return store.documentURL() ? write(store, store.documentURL()->toLocalFile()) : exportImage(store);
}

bool DocumentActions::saveAsDocument(AnnotationStore &store)
{
    QString name = QCoreApplication::translate("DocumentActions", "Screenshot") + QStringLiteral(".tessaly");
    QString folder = m_surroundings.settings.value(SettingKeys::defaultSaveFolder);
    if (store.documentURL()) {
        const QFileInfo document(store.documentURL()->toLocalFile());
        name = document.fileName();
        folder = document.path();
    }
    const auto path = m_surroundings.panels.chooseDocument(name, folder);
    return path && write(store, *path);
}

bool DocumentActions::write(AnnotationStore &store, const QString &path)
{
    const Moment moment(store);
    const auto written = writePackage(moment, path);
    if (!written)
        return false;
    if (!*written) {
        m_surroundings.alerts.warn(
            QCoreApplication::translate("DocumentActions", "Couldn't save the document"), written->failure().message);
        return false;
    }
    store.setDocumentURL(QUrl::fromLocalFile(path));
    moment.markSaved(store);
    m_surroundings.recentDocuments.add(path);
    return true;
}

void DocumentActions::writeCompanion(AnnotationStore &store, const QString &imagePath)
{
    writeCompanion(store, Moment(store), imagePath);
}

void DocumentActions::writeCompanion(AnnotationStore &store, const Moment &moment, const QString &imagePath)
{
    const QString path = companionPath(imagePath);
    const auto written = writePackage(moment, path);
    if (!written)
        return;
    if (!*written) {
        m_surroundings.alerts.warn(
            QCoreApplication::translate("DocumentActions", "Couldn't save the Tessaly document next to the image"),
            written->failure().message);
        return;
    }
    if (!store.documentURL() || isDocumentOf(store, path))
        moment.markSaved(store);
    m_surroundings.recentDocuments.add(path);
}

std::optional<RasterImage> DocumentActions::flattened(const AnnotationStore &store)
{
    return flattened(FlattenService::composition(store));
}

std::optional<RasterImage> DocumentActions::flattened(const FrameComposition &framed)
{
    const auto image = std::make_shared<std::optional<RasterImage>>();
    const auto flatten = [framed, image](const Cancellation &) { *image = FlattenService::flatten(framed); };
    if (!m_surroundings.work.run(QCoreApplication::translate("DocumentActions", "Preparing the image…"), flatten))
        return std::nullopt;
    if (!*image)
        FlattenService::alertOfFailure(m_surroundings.alerts);
    return std::move(*image);
}

std::optional<Outcome> DocumentActions::writePackage(const Moment &moment, const QString &path)
{
    using Made = Result<TessalyDocument::Package, TessalyDocument::Failure>;
    // Damaged is also what running out of memory leaves.
    const auto made = std::make_shared<Made>(TessalyDocument::Failure {});
    const auto make
        = [source = moment.source, made](const Cancellation &) { *made = TessalyDocument::package(source); };
    if (!m_surroundings.work.run(QCoreApplication::translate("DocumentActions", "Saving the document…"), make))
        return std::nullopt;
    if (!*made)
        return Outcome(Failure { made->failure().description() });
    // Only what is still wanted is written, so the writing itself waits until here.
    Outcome written = Failure { QCoreApplication::translate("DocumentActions", "There is not enough memory for it.") };
    m_surroundings.work.complete(QCoreApplication::translate("DocumentActions", "Saving the document…"),
        [&](const Cancellation &) { written = TessalyDocument::write(**made, path); });
    return written;
}

} // namespace tessaly
