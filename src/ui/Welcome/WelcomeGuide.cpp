// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/WelcomeGuide.h"

#include "core/Preferences/Settings.h"
#include "ui/Menu/CommandTarget.h"
#include "ui/Menu/KeyCaps.h"
#include "ui/Style/Icons.h"
#include "ui/Welcome/WelcomeParts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace tessaly {

namespace {

/// "Ctrl+Alt++" is Ctrl, Alt and the plus key.
QStringList keysOf(const QString &combination)
{
    QStringList keys = combination.split(u'+', Qt::SkipEmptyParts);
    if (combination.endsWith(u'+'))
        keys += QStringLiteral("+");
    return keys;
}

QIcon iconCalled(const char *name) { return Icons::icon(QLatin1StringView(name)); }

} // namespace

WelcomeGuide::WelcomeGuide(Settings &settings, CommandTarget &program, const Facts &facts) :
    SmallWindow(tr("Welcome"), 68),
    m_settings(settings),
    m_program(program)
{
    setObjectName(QStringLiteral("welcomeGuide"));
    content().addWidget(WelcomeParts::header(
        tr("Welcome to Tessaly"), tr("Take a picture of the screen, mark it up, and hand it on.")));
    content().addSpacing(4);
    addFeatures(facts);
    content().addStretch();
    addButtons();
}

void WelcomeGuide::addFeatures(const Facts &facts)
{
    using namespace WelcomeParts;
    const QStringList keys = keysOf(facts.regionKey);
    content().addWidget(feature(iconCalled("capture-region"), tr("Capture a region"),
        keys.isEmpty()
            ? tr("Choose Capture Region, then drag over what you want. This desktop gives programs no keys of their "
                 "own; its keyboard settings can run “tessaly capture region” for you.")
            : tr("Press these keys now, or whenever something is worth keeping, then drag over it. Esc cancels."),
        keys.isEmpty() ? nullptr : new KeyCaps(keys)));
    content().addWidget(feature(iconCalled("pen"), tr("Mark it up"),
        tr("Point with arrows, write, number the steps, cover what nobody should read. Then copy it, save it, drag it "
           "into another program or pin it to the screen.")));
    content().addWidget(facts.hasTray
            ? feature(iconCalled("home"), tr("Find it in the tray"),
                tr("Tessaly waits as an icon in the tray: click it to open Tessaly, right-click it for everything "
                   "else."))
            : feature(iconCalled("home"), tr("Find it again"),
                tr("This desktop shows no tray. Start Tessaly again to see your recent captures; Ctrl+Q in any of its "
                   "windows quits.")));
    content().addWidget(feature(iconCalled("lock"), tr("Yours alone"),
        tr("Captures are kept only on this computer. Tessaly opens no network connection.")));
}

void WelcomeGuide::addButtons()
{
    auto *again = new QCheckBox(tr("Show welcome on launch"));
    again->setToolTip(tr("Show this guide the next time that Tessaly starts"));
    again->setChecked(
        m_settings.value(SettingKeys::showOnboardingOnLaunch) && !m_settings.value(SettingKeys::didShowOnboarding));
    // Where they cannot be written they hold for this run, and the guide comes once too often.
    connect(again, &QCheckBox::toggled, this, [this](bool on) {
        static_cast<void>(m_settings.set(SettingKeys::showOnboardingOnLaunch, on));
        static_cast<void>(m_settings.set(SettingKeys::didShowOnboarding, !on));
    });
    auto *done = makeButton(tr("Close"), tr("Close (Esc)"));
    connect(done, &QPushButton::clicked, this, &QDialog::close);
    buttons().addWidget(again);
    buttons().addStretch();
    buttons().addSpacing(24);
    buttons().addWidget(done);
    const CommandId region = CommandId::CaptureRegion;
    if (!m_program.knows(region))
        return done->setFocus();
    auto *capture = makeButton(tr("Capture Region"), tr("Close this guide and take a region (Return)"));
    capture->setObjectName(QStringLiteral("captureRegion"));
    capture->setDefault(true);
    capture->setFocus();
    connect(capture, &QPushButton::clicked, this, [this, &program = m_program] {
        close();
        program.perform(region);
    });
    buttons().addWidget(capture);
}

} // namespace tessaly
