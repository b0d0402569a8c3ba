// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QToolButton>

namespace tessaly {

/// Says beside a lock where captures are kept and for how long, and leads to the settings of that. Below it there may
/// be a hint.
class StartFooter : public QWidget {
    Q_OBJECT

public:
    explicit StartFooter(QWidget *parent = nullptr);

    void setText(const QString &text);
    void setHint(const QString &sentence);
    void setOffersSettings(bool offers);

Q_SIGNALS:
    void settingsRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void dress();

    QLabel *m_lock;
    QLabel *m_text;
    QToolButton *m_settings;
    QLabel *m_hint;
};

} // namespace tessaly
