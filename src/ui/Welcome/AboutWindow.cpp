// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/AboutWindow.h"

#include "ui/Welcome/ProgramVersion.h"
#include "ui/Welcome/WelcomeParts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSysInfo>

namespace tessaly {

/// What a report of a fault needs to begin with.
static QString facts()
{
    return QStringLiteral("Tessaly %1, Qt %2, %3, %4")
        .arg(programVersion(), QString::fromLatin1(qVersion()), QSysInfo::prettyProductName(),
            QGuiApplication::platformName());
}

AboutWindow::AboutWindow() : SmallWindow(tr("About Tessaly"), 48)
{
    setObjectName(QStringLiteral("about"));
    content().setSpacing(6);
    content().addWidget(WelcomeParts::programIcon(96), 0, Qt::AlignHCenter);
    content().addSpacing(10);
    QLabel *const lines[] = {
        WelcomeParts::headline(tr("Tessaly"), 1.8),
        WelcomeParts::quietParagraph(tr("Version %1").arg(programVersion())),
        WelcomeParts::paragraph(tr("Takes pictures of the screen, marks them up and hands them on.")),
        WelcomeParts::quietParagraph(
            tr("Free software under the GNU General Public License, version 3 or later. It comes without any "
               "warranty.")),
        WelcomeParts::quietParagraph(
            tr("Made with Qt %1, Tesseract, ZXing, libheif and giflib.").arg(QString::fromLatin1(qVersion()))),
    };
    for (QLabel *line : lines) {
        line->setAlignment(Qt::AlignHCenter);
        line->setTextInteractionFlags(Qt::TextSelectableByMouse);
        content().addWidget(line);
        if (line == lines[1] || line == lines[2])
            content().addSpacing(10);
    }
    content().addStretch();
    auto *copy = makeButton(tr("Copy Version"), tr("Copy the versions of Tessaly, Qt and the system, for a report"));
    connect(copy, &QPushButton::clicked, this, [] { QGuiApplication::clipboard()->setText(facts()); });
    auto *done = makeButton(tr("Close"), tr("Close (Esc)"));
    done->setDefault(true);
    done->setFocus();
    connect(done, &QPushButton::clicked, this, &QDialog::close);
    buttons().addWidget(copy);
    buttons().addStretch();
    buttons().addWidget(done);
}

} // namespace tessaly
