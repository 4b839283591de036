#include "property/SpokenText_p.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace Tessark::PropertyUI {

namespace {

/// As the label takes it. Without a buddy its ampersands are not mnemonics but are shown.
QString plainText(const QLabel &label)
{
    QString text = label.buddy() ? withoutMnemonic(label.text()) : label.text();
    switch (label.textFormat()) {
    case Qt::PlainText:
        return text;
    case Qt::RichText:
        return QTextDocumentFragment::fromHtml(text).toPlainText();
    case Qt::MarkdownText: {
        QTextDocument document;
        document.setMarkdown(text);
        return document.toPlainText();
    }
    default:
        return spokenText(text);
    }
}

QString withoutColon(QString text)
{
    constexpr QChar kWideColon(0xFF1A);
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(kWideColon))
        text = text.chopped(1).trimmed();
    return text;
}

} // namespace

QString spokenText(const QLabel &label)
{
    return withoutColon(plainText(label).simplified());
}

QString spokenText(const QAbstractButton &button)
{
    return withoutMnemonic(button.text()).simplified();
}

QString spokenText(const QString &text)
{
    const bool isMarkup = Qt::mightBeRichText(text);
    return (isMarkup ? QTextDocumentFragment::fromHtml(text).toPlainText() : text).simplified();
}

QString withoutMnemonic(const QString &text)
{
    const QLatin1Char mark('&');
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == mark && ++i == text.size())
            break;
        result.append(text.at(i)); // the second one of a pair is shown
    }
    return result;
}

QString joinedParts(const QStringList &parts)
{
    QStringList said;
    for (const QString &part : parts) {
        if (!part.isEmpty() && (said.isEmpty() || said.last() != part))
            said.append(part);
    }
    return said.join(QLatin1String(", "));
}

} // namespace Tessark::PropertyUI
