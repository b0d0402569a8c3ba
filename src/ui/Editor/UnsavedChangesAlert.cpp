// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/UnsavedChangesAlert.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Desktop/Alerts.h"
#include "core/Document/DocumentActions.h"
#include "core/History/CaptureHistory.h"

#include <QCoreApplication>

namespace tessaly::UnsavedChangesAlert {

Answer run(AnnotationStore &store, const Services &services)
{
    if (!store.hasUnsavedChanges() || services.history.keepNow(store, services.work))
        return Answer::Close;
    enum Button { Save, Cancel, DontSave };
    const int button = services.alerts.ask(
        { .message = QCoreApplication::translate("UnsavedChangesAlert", "Do you want to save your annotations?"),
            .informativeText
            = QCoreApplication::translate("UnsavedChangesAlert", "Your changes will be lost if you don't save them."),
            .answers = { { QCoreApplication::translate("UnsavedChangesAlert", "Save…") },
                { QCoreApplication::translate("UnsavedChangesAlert", "Cancel") },
                { QCoreApplication::translate("UnsavedChangesAlert", "Don't Save"), QStringLiteral("Ctrl+D") } },
            .escapeAnswer = Cancel });
    switch (button) {
    case Save:
        return services.documents.save(store) ? Answer::Close : Answer::Cancel;
    case DontSave:
        store.setHasUnsavedChanges(false);
        return Answer::Discard;
    default:
        return Answer::Cancel;
    }
}

} // namespace tessaly::UnsavedChangesAlert
