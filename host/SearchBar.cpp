#include "host/SearchBar_p.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>

namespace Tessark::PropertyHost {

namespace {

constexpr int kMargin = 4;

bool isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

SearchBar::SearchBar(QWidget *parent)
    : QWidget(parent)
    , m_field(new QLineEdit)
    , m_close(new QToolButton)
    , m_onlyChanged(new QCheckBox)
    , m_count(new QLabel)
{
    m_field->setClearButtonEnabled(true);
    m_field->installEventFilter(this);
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::NoFocus); // Escape does it
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_count->setTextFormat(Qt::PlainText);
    auto *const layout = new QGridLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addWidget(m_field, 0, 0, 1, 2);
    layout->addWidget(m_close, 0, 2);
    layout->addWidget(m_onlyChanged, 1, 0);
    layout->addWidget(m_count, 1, 1, 1, 2, Qt::AlignTrailing | Qt::AlignVCenter);
    layout->setColumnStretch(1, 1);
    showTexts();
    connect(m_field, &QLineEdit::textChanged, this, &SearchBar::searchChanged);
    connect(m_onlyChanged, &QCheckBox::toggled, this, &SearchBar::searchChanged);
    connect(m_close, &QToolButton::clicked, this, &SearchBar::closeWanted);
}

QString SearchBar::text() const
{
    return m_field->text();
}

void SearchBar::setText(const QString &text)
{
    if (text == m_field->text())
        return;
    const QSignalBlocker blocker(this); // the field's own signals show its button
    m_field->setText(text);
}

bool SearchBar::isOnlyChanged() const
{
    return m_onlyChanged->isChecked();
}

void SearchBar::setOnlyChanged(bool onlyChanged)
{
    const QSignalBlocker blocker(this);
    m_onlyChanged->setChecked(onlyChanged);
}

void SearchBar::showMatches(int count, int current)
{
    m_matches = count;
    m_currentMatch = current;
    showCount();
}

void SearchBar::showNoSearch()
{
    m_matches.reset();
    showCount();
}

void SearchBar::takeFocus()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

/// The field passes on keys that it does not use, but not before the window's shortcuts.
bool SearchBar::eventFilter(QObject *, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress)
        return false;
    auto *const key = static_cast<QKeyEvent *>(event);
    if (!isOwnKey(*key))
        return false;
    if (isOverride)
        event->accept();
    else
        keyPressEvent(key);
    return !isOverride;
}

void SearchBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    QWidget::changeEvent(event);
}

void SearchBar::keyPressEvent(QKeyEvent *event)
{
    const bool isBack = event->modifiers() & Qt::ShiftModifier;
    if (!isOwnKey(*event))
        QWidget::keyPressEvent(event);
    else if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else if (event->key() == Qt::Key_Up || (isReturn(event->key()) && isBack))
        Q_EMIT previousWanted();
    else
        Q_EMIT nextWanted();
}

void SearchBar::showTexts()
{
    m_field->setPlaceholderText(tr("Search"));
    m_field->setAccessibleName(tr("Search"));
    m_onlyChanged->setText(tr("Only changed"));
    m_onlyChanged->setToolTip(tr("Shows only rows whose value is not the default"));
    m_close->setToolTip(tr("Close the search"));
    m_close->setAccessibleName(tr("Close the search"));
    showCount();
}

void SearchBar::showCount()
{
    const QString text = countText();
    m_count->setText(text);
    m_field->setAccessibleDescription(text); // read out while the focus is there
}

QString SearchBar::countText() const
{
    if (!m_matches)
        return QString();
    if (*m_matches == 0)
        return tr("No matches");
    if (m_currentMatch >= 0) {
        return tr("%1 of %2", "match, all matches")
            .arg(QString::number(m_currentMatch + 1), QString::number(*m_matches));
    }
    return *m_matches == 1 ? tr("1 match") : tr("%n matches", "", *m_matches);
}

bool SearchBar::isOwnKey(const QKeyEvent &event) const
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const int key = event.key();
    if (isReturn(key) && m_field->hasFocus())
        return modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier;
    return modifiers == Qt::NoModifier
           && (key == Qt::Key_Escape || key == Qt::Key_Up || key == Qt::Key_Down);
}

} // namespace Tessark::PropertyHost
