// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/WhatsNewSheet.h"

#include "ui/Style/Icons.h"
#include "ui/Welcome/Novelties.h"
#include "ui/Welcome/ProgramVersion.h"
#include "ui/Welcome/WelcomeParts.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>

namespace tessaly {

WhatsNewSheet::WhatsNewSheet() : SmallWindow(tr("What’s New"), 64)
{
    setObjectName(QStringLiteral("whatsNew"));
    content().addWidget(WelcomeParts::header(tr("What’s New in Tessaly"), tr("Version %1").arg(programVersion())));
    content().addSpacing(4);
    for (const Novelty &each : novelties())
        content().addWidget(WelcomeParts::feature(Icons::icon(QLatin1StringView(each.icon)),
            QCoreApplication::translate("Novelties", each.title), QCoreApplication::translate("Novelties", each.text)));
    content().addStretch();
    auto *done = makeButton(tr("Continue"), tr("Close (Return)"));
    done->setDefault(true);
    done->setFocus();
    connect(done, &QPushButton::clicked, this, &QDialog::close);
    buttons().addStretch();
    buttons().addWidget(done);
}

} // namespace tessaly
