// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>
#include <QUuid>

#include <map>

namespace tessaly {

class AnnotationStore;
class CanvasController;
class CanvasView;

/// What a screen reader finds on a canvas: the capture by its size, and the marks on it as its children.
class CanvasAccessible : public QAccessibleWidget {
public:
    explicit CanvasAccessible(CanvasView &view);
    ~CanvasAccessible() override;

    /// Makes Qt ask for these objects; once for the program, and again without effect.
    static void install();
    /// The mark that was selected by key is what the user is at now.
    static void announceSelection(CanvasView &view);

    QString text(QAccessible::Text text) const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *childAt(int x, int y) const override;

private:
    class Mark;
    QAccessibleInterface *interfaceOf(const QUuid &mark) const;
    CanvasView &view() const;

    mutable std::map<QUuid, QAccessible::Id> m_marks;
};

} // namespace tessaly
