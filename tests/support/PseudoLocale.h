#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSet>
#include <QTabBar>
#include <QTranslator>

#include <algorithm>

namespace TestSupport {

/// Longer by two fifths and between brackets, white ones for a text of ours.
inline QString pseudoText(const QString &text, QChar bracket = QChar(0x27e6))
{
    constexpr double growth = 0.4;
    const int more = int(growth * double(text.size())) + 1;
    return bracket + text + QString(more, QLatin1Char('~')) + QChar(bracket.unicode() + 1);
}

/// While it lives, all texts are in a language that shows what is not translated and what has no room
/// in another language.
class PseudoTranslator : public QTranslator
{
public:
    PseudoTranslator() { QCoreApplication::installTranslator(this); }
    ~PseudoTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        const bool isOurs = QByteArray(context).startsWith("Tessark::");
        // Which layouts and platforms read and nobody sees.
        if (!isOurs && (text.startsWith(QLatin1String("QT_")) || text.isEmpty()))
            return QString();
        return isOurs ? pseudoText(text) : pseudoText(text, QChar(0x27ea));
    }
};

/// Finds texts that are neither the pseudo language's nor the host's.
class UntranslatedTexts
{
public:
    explicit UntranslatedTexts(QSet<QString> hostTexts)
        : m_hostTexts(std::move(hostTexts))
    {
    }

    /// In the widget and all that it has inside, hidden ones and those of other pages too, each with
    /// the class that shows it.
    QStringList in(const QWidget &window) const
    {
        QStringList found;
        QList<const QWidget *> widgets = window.findChildren<const QWidget *>();
        widgets.prepend(&window);
        for (const QWidget *widget : std::as_const(widgets)) {
            const QStringList texts = textsOf(*widget);
            for (const QString &text : texts) {
                if (isUntranslated(text))
                    found.append(QLatin1String(widget->metaObject()->className())
                                 + QLatin1String(": ") + text);
            }
        }
        found.removeDuplicates();
        return found;
    }

private:
    static QStringList textsOf(const QWidget &widget)
    {
        QStringList texts = {widget.toolTip(), widget.whatsThis(), widget.statusTip(),
                             widget.accessibleName(), widget.accessibleDescription()};
        if (widget.isWindow())
            texts.append(widget.windowTitle());
        if (const auto *const label = qobject_cast<const QLabel *>(&widget))
            texts.append(label->text());
        if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
            texts.append(button->text());
        if (const auto *const box = qobject_cast<const QGroupBox *>(&widget))
            texts.append(box->title());
        if (const auto *const line = qobject_cast<const QLineEdit *>(&widget))
            texts.append(line->placeholderText());
        if (const auto *const edit = qobject_cast<const QPlainTextEdit *>(&widget))
            texts.append(edit->placeholderText());
        return texts + itemsOf(widget) + spokenTexts(widget);
    }

    static QStringList itemsOf(const QWidget &widget)
    {
        QStringList texts;
        if (const auto *const box = qobject_cast<const QComboBox *>(&widget)) {
            for (int i = 0; i < box->count(); ++i)
                texts.append(box->itemText(i));
        }
        if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts.append({tabs->tabText(i), tabs->tabToolTip(i)});
        }
        if (const auto *const menu = qobject_cast<const QMenu *>(&widget)) {
            for (const QAction *action : menu->actions())
                texts.append(action->text().section(QLatin1Char('\t'), 0, 0)); // without keys
        }
        return texts;
    }

    /// What assistive technology is told of the widget, and of parts of it that are no widgets.
    static QStringList spokenTexts(const QWidget &widget)
    {
        auto *const object = const_cast<QWidget *>(&widget);
        const QAccessibleInterface *const accessible =
            QAccessible::queryAccessibleInterface(object);
        if (!accessible)
            return {};
        QStringList texts = spokenTexts(*accessible);
        for (int i = 0; i < accessible->childCount(); ++i) {
            const QAccessibleInterface *const child = accessible->child(i);
            if (child && !child->object())
                texts += spokenTexts(*child);
        }
        return texts;
    }

    static QStringList spokenTexts(const QAccessibleInterface &accessible)
    {
        return {accessible.text(QAccessible::Name), accessible.text(QAccessible::Description),
                accessible.text(QAccessible::Help)};
    }

    /// Of a text that is put together, each part is looked at.
    bool isUntranslated(QString text) const
    {
        static const QRegularExpression tagOrBreak(QStringLiteral("</?[a-z]+/?>|[\n\u2028]"));
        static const QRegularExpression innermost(
            QStringLiteral("[\u27e6\u27ea][^\u27e6-\u27eb]*[\u27e7\u27eb]"));
        text.remove(QLatin1Char('&'));
        text.remove(QStringLiteral("[*]")); // where the title of a window tells of changes
        text.replace(tagOrBreak, QStringLiteral(","));
        if (m_hostTexts.contains(text))
            return false;
        while (text.contains(innermost))
            text.replace(innermost, QStringLiteral(","));
        const QStringList parts = text.split(QLatin1Char(','));
        return std::any_of(parts.begin(), parts.end(),
                           [this](const QString &part) { return isStrange(part.trimmed()); });
    }

    bool isStrange(QString part) const
    {
        if (part.endsWith(QLatin1Char(':')))
            part.chop(1);
        const bool isWord =
            std::any_of(part.cbegin(), part.cend(), [](QChar letter) { return letter.isLetter(); });
        return isWord && !m_hostTexts.contains(part);
    }

    QSet<QString> m_hostTexts;
};

} // namespace TestSupport
