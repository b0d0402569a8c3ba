// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

class QButtonGroup;

namespace tessaly {

/// One of a few choices, each an icon with its name as tooltip. Left and Right walk through them.
class IconChoice : public QWidget {
    Q_OBJECT

public:
    struct Row {
        QString name;
        QString icon; ///< name in Icons
    };
    IconChoice(const QString &title, const QList<Row> &rows, QWidget *parent = nullptr);

    /// Shows a choice and emits nothing.
    void setCurrent(int index);

Q_SIGNALS:
    void chosen(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QButtonGroup *m_group;
};

} // namespace tessaly
