// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasAccessible.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/MarkTraits.h"
#include "ui/Editor/Canvas/CanvasView.h"

#include <QCoreApplication>
#include <QPointer>

namespace tessaly {

/// One mark; it becomes invalid when the mark is deleted or the canvas is closed.
class CanvasAccessible::Mark : public QAccessibleInterface {
public:
    Mark(CanvasView &view, const QUuid &id) : m_view(&view), m_id(id) { }

    const QUuid &id() const { return m_id; }
    bool isValid() const override { return mark(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    void setText(QAccessible::Text, const QString &) override { }

    QString text(QAccessible::Text text) const override
    {
        const Annotation *self = mark();
        return self && text == QAccessible::Name ? spokenName(*self) : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const CanvasController &controller = m_view->controller();
        const QRect box = controller.transform().toView(controller.visibleBox(m_id)).toAlignedRect();
        return { m_view->mapToGlobal(box.topLeft()), box.size() };
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.selectable = state.focusable = true;
        state.invalid = !isValid();
        if (isValid())
            state.selected = m_view->store().selectedID() == m_id;
        state.focused = state.selected && m_view->hasFocus();
        return state;
    }

private:
    const Annotation *mark() const
    {
        const auto index = m_view ? m_view->store().indexOf(m_id) : std::nullopt;
        return index ? &m_view->store().annotations().at(*index) : nullptr;
    }

    QPointer<CanvasView> m_view;
    QUuid m_id;
};

CanvasAccessible::CanvasAccessible(CanvasView &view) : QAccessibleWidget(&view, QAccessible::Canvas) { }

CanvasAccessible::~CanvasAccessible()
{
    for (const auto &[mark, id] : m_marks)
        QAccessible::deleteAccessibleInterface(id);
}

void CanvasAccessible::install()
{
    QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
        auto *view = qobject_cast<CanvasView *>(object);
        return view ? new CanvasAccessible(*view) : nullptr;
    });
}

void CanvasAccessible::announceSelection(CanvasView &view)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface *selected = canvas ? canvas->focusChild() : nullptr;
    if (!selected)
        return;
    QAccessibleEvent event(selected, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

CanvasView &CanvasAccessible::view() const { return *static_cast<CanvasView *>(object()); }

QString CanvasAccessible::text(QAccessible::Text text) const
{
    if (text != QAccessible::Name)
        return QAccessibleWidget::text(text);
    const QSize size = view().store().pixelDimensions();
    QString name = QCoreApplication::translate("Canvas", "Screenshot, %d by %d pixels");
    for (const int number : { size.width(), size.height() })
        if (const qsizetype place = name.indexOf(u"%d"); place >= 0)
            name.replace(place, 2, QString::number(number));
    return name;
}

int CanvasAccessible::childCount() const { return static_cast<int>(view().store().annotations().size()); }

QAccessibleInterface *CanvasAccessible::interfaceOf(const QUuid &mark) const
{
    const auto known = m_marks.find(mark);
    if (known != m_marks.end())
        return QAccessible::accessibleInterface(known->second);
    auto *made = new Mark(view(), mark);
    m_marks.emplace(mark, QAccessible::registerAccessibleInterface(made));
    return made;
}

QAccessibleInterface *CanvasAccessible::child(int index) const
{
    const auto &marks = view().store().annotations();
    return index >= 0 && index < marks.size() ? interfaceOf(marks.at(index).id) : nullptr;
}

int CanvasAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *mark = dynamic_cast<const Mark *>(child);
    const auto index = mark ? view().store().indexOf(mark->id()) : std::nullopt;
    return index ? static_cast<int>(*index) : -1;
}

QAccessibleInterface *CanvasAccessible::focusChild() const
{
    const auto &selected = view().store().selectedID();
    return selected && view().hasFocus() ? interfaceOf(*selected) : nullptr;
}

QAccessibleInterface *CanvasAccessible::childAt(int x, int y) const
{
    const auto mark = view().controller().markAt(view().mapFromGlobal(QPointF(x, y)));
    return mark ? interfaceOf(*mark) : nullptr;
}

} // namespace tessaly
