// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/WelcomeParts.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QVBoxLayout>

namespace tessaly {

namespace {

// Points.
constexpr int badgeSide = 40;
constexpr int badgeIconSide = 22;
constexpr int headerIconSide = 60;
constexpr qreal groundTint = 0.13; ///< of the accent

/// An icon on a round ground, in the accent's colour.
class Badge : public QWidget {
public:
    explicit Badge(QIcon icon) : m_icon(std::move(icon)) { setFixedSize(badgeSide, badgeSide); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor ground = Colors::accent();
        ground.setAlphaF(groundTint);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawEllipse(rect());
        QRect place(0, 0, badgeIconSide, badgeIconSide);
        place.moveCenter(rect().center());
        m_icon.paint(&painter, place, Qt::AlignCenter, QIcon::Normal, QIcon::On);
    }

private:
    QIcon m_icon;
};

/// The drawing itself: the window's icon has no size for it.
class ProgramIcon : public QLabel {
public:
    explicit ProgramIcon(int side) : m_drawing(QStringLiteral(":/tessaly/icons/application/tessaly.svg"))
    {
        setFixedSize(side, side);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        m_drawing.render(&painter, QRectF(rect()));
    }

private:
    QSvgRenderer m_drawing;
};

} // namespace

QLabel *WelcomeParts::headline(const QString &text, double factor)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel *WelcomeParts::paragraph(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel *WelcomeParts::quietParagraph(const QString &text)
{
    QLabel *label = paragraph(text);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QLabel *WelcomeParts::programIcon(int side)
{
    Icons::names(); // makes the drawings known
    return new ProgramIcon(side);
}

QWidget *WelcomeParts::header(const QString &title, const QString &subtitle)
{
    auto *whole = new QWidget;
    auto *row = new QHBoxLayout(whole);
    row->setContentsMargins({});
    row->setSpacing(18);
    row->addWidget(programIcon(headerIconSide), 0, Qt::AlignVCenter);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(headline(title, 1.6));
    texts->addWidget(quietParagraph(subtitle));
    texts->addStretch();
    row->addLayout(texts, 1);
    return whole;
}

QWidget *WelcomeParts::feature(const QIcon &icon, const QString &title, const QString &text, QWidget *beside)
{
    auto *whole = new QWidget;
    whole->setAccessibleName(title);
    whole->setAccessibleDescription(text);
    auto *row = new QHBoxLayout(whole);
    row->setContentsMargins({});
    row->setSpacing(16);
    row->addWidget(new Badge(icon), 0, Qt::AlignTop);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(3);
    auto *first = new QHBoxLayout;
    first->addWidget(headline(title, 1.08), 1);
    if (beside)
        first->addWidget(beside);
    texts->addLayout(first);
    texts->addWidget(quietParagraph(text));
    row->addLayout(texts, 1);
    return whole;
}

} // namespace tessaly
