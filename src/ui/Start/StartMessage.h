// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QLabel>
#include <QWidget>

namespace tessaly {

/// A large quiet icon over a title and a sentence, for an area that has nothing else to show.
class StartMessage : public QWidget {
    Q_OBJECT

public:
    explicit StartMessage(QWidget *parent = nullptr);

    void setContent(QLatin1StringView icon, const QString &title, const QString &sentence);

protected:
    void changeEvent(QEvent *event) override;

private:
    void dress();

    QIcon m_icon;
    QLabel *m_picture;
    QLabel *m_title;
    QLabel *m_sentence;
};

} // namespace tessaly
