// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/LayerShell.h"

#include "platform/wayland/Surfaces/LayerWindow.h"

#include <QGuiApplication>

namespace tessaly {

namespace {

class QtLayerShell final : public QObject, public LayerShell {
public:
    explicit QtLayerShell(std::shared_ptr<LayerConnection> connection) : m_connection(std::move(connection))
    {
        qGuiApp->installEventFilter(this);
    }

    void place(QWindow &window, const LayerPlace &place) override
    {
        if (auto *known = layerOf(&window))
            known->setPlace(place);
        else
            adopt(window, place, place.rect.isEmpty() ? Rank::Front : Rank::Back);
    }

    void move(QWindow &window, const QRect &rect) override
    {
        auto *known = layerOf(&window);
        if (!known)
            return;
        LayerPlace place = known->place();
        place.rect = rect;
        known->setPlace(place);
    }

    void setPassesClicks(QWindow &window, bool passes) override
    {
        if (auto *known = layerOf(&window))
            known->setPassesClicks(passes);
    }

    void waitForCompositor() override { m_connection->roundTrip(); }

    /// Menus and tool tips of a window in the layers would become windows among the others, since their parent is
    /// none of those: they get a place of their own in the layers before Qt gives them a role.
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Show || !object->isWindowType())
            return false;
        auto *window = static_cast<QWindow *>(object);
        if (window->type() != Qt::Popup && window->type() != Qt::ToolTip)
            return false;
        const auto *parent = layerOf(window->transientParent());
        auto *known = layerOf(window);
        if (!parent || !parent->place().screen || (known && m_back.contains(known)))
            return false;
        const QScreen &screen = *parent->place().screen;
        const QRect asked = window->geometry().translated(-screen.geometry().topLeft());
        const LayerPlace own { parent->place().screen, movedInside(asked, screen.size()), LayerPlace::Keyboard::Never };
        if (known)
            known->setPlace(own);
        else
            adopt(*window, own, Rank::Front);
        return false;
    }

private:
    enum class Rank { Front, Back }; ///< covers and menus, and what they must not lie below

    void adopt(QWindow &window, const LayerPlace &place, Rank rank)
    {
        auto *layer = new LayerWindow(m_connection, window, place);
        QList<QPointer<LayerWindow>> &list = rank == Rank::Front ? m_front : m_back;
        list.append(layer);
        if (rank == Rank::Front)
            connect(layer, &LayerWindow::shown, this, &QtLayerShell::order);
        else
            layer->stepBack(hasFront());
    }

    bool hasFront() const
    {
        return std::ranges::any_of(m_front, [](const auto &layer) { return layer && layer->isShown(); });
    }

    /// Which of two windows in one layer lies above is up to the compositor, so what must be in front has one for
    /// itself.
    void order()
    {
        m_front.removeAll(nullptr);
        m_back.removeAll(nullptr);
        for (const auto &layer : std::as_const(m_back))
            layer->stepBack(hasFront());
    }

    static LayerWindow *layerOf(const QWindow *window)
    {
        if (window) {
            for (QObject *child : window->children()) {
                if (auto *layer = dynamic_cast<LayerWindow *>(child))
                    return layer;
            }
        }
        return nullptr;
    }

    static QRect movedInside(QRect rect, QSize bounds)
    {
        rect.moveLeft(std::max(0, std::min(rect.left(), bounds.width() - rect.width())));
        rect.moveTop(std::max(0, std::min(rect.top(), bounds.height() - rect.height())));
        return rect;
    }

    std::shared_ptr<LayerConnection> m_connection;
    QList<QPointer<LayerWindow>> m_front, m_back;
};

} // namespace

std::unique_ptr<LayerShell> LayerShell::create()
{
    if (auto connection = LayerConnection::create())
        return std::make_unique<QtLayerShell>(std::move(connection));
    return nullptr;
}

} // namespace tessaly
