// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/HelpWindow.h"

#include "ui/Style/Icons.h"
#include "ui/Welcome/HelpPage.h"

#include <QAction>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

namespace tessaly {

namespace {

constexpr int widthInLetters = 96;
constexpr int heightInLines = 38;
constexpr int pageMargin = 24;
constexpr double mostOfScreen = 0.9;

} // namespace

HelpWindow::HelpWindow() : m_field(new QLineEdit), m_page(new QTextBrowser)
{
    setObjectName(QStringLiteral("help"));
    setWindowTitle(tr("Tessaly Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_field->setPlaceholderText(tr("Find in the help"));
    m_field->setAccessibleName(m_field->placeholderText());
    m_field->setToolTip(tr("Find in the help (Ctrl+F); Return goes on, Shift+Return goes back"));
    m_field->addAction(Icons::icon(QLatin1StringView("search")), QLineEdit::LeadingPosition);
    m_field->setClearButtonEnabled(true);
    m_page->setAccessibleName(tr("Help"));
    m_page->setFrameShape(QFrame::NoFrame);
    m_page->setOpenExternalLinks(false);
    m_page->document()->setDocumentMargin(pageMargin);
    m_page->setHtml(helpPage());
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    auto *top = new QHBoxLayout;
    top->setContentsMargins(pageMargin, 12, pageMargin, 12);
    top->addWidget(m_field);
    column->addLayout(top);
    column->addWidget(m_page, 1);
    addKeys();
    m_page->setFocus();
    const QSize wanted(fontMetrics().averageCharWidth() * widthInLetters, fontMetrics().height() * heightInLines);
    resize(wanted.boundedTo(screen()->availableSize() * mostOfScreen));
}

void HelpWindow::addKeys()
{
    const auto add = [this](const QKeySequence &keys, auto &&action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(QKeySequence::Find, [this] {
        m_field->setFocus(Qt::ShortcutFocusReason);
        m_field->selectAll();
    });
    add(Qt::SHIFT | Qt::Key_Return, [this] { find(true); });
    add(Qt::Key_F3, [this] { find(false); });
    add(QKeySequence::Close, [this] { close(); });
    connect(m_field, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(m_field, &QLineEdit::textChanged, this, [this] {
        m_page->moveCursor(QTextCursor::Start);
        find(false);
    });
}

void HelpWindow::find(bool backward)
{
    const auto direction = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (m_field->text().isEmpty() || m_page->find(m_field->text(), direction))
        return;
    m_page->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    m_page->find(m_field->text(), direction);
}

} // namespace tessaly
