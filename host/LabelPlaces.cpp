#include "host/LabelPlaces_p.h"

#include "host/SearchText_p.h"
#include "host/SearchedTexts_p.h"

#include <QCheckBox>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

constexpr int kIconGap = 4; // as styles draw check boxes

/// What a text is laid out with.
struct TextFrame
{
    QRectF rect;
    Qt::Alignment alignment;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool wraps = false;

    QTextOption option() const
    {
        QTextOption option(alignment & Qt::AlignHorizontal_Mask);
        option.setTextDirection(direction);
        option.setWrapMode(wraps ? QTextOption::WordWrap : QTextOption::ManualWrap);
        return option;
    }

    /// Where a text of this height begins.
    qreal top(qreal height) const
    {
        if (alignment & Qt::AlignTop)
            return rect.top();
        return alignment & Qt::AlignBottom ? rect.bottom() - height
                                           : rect.top() + (rect.height() - height) / 2;
    }
};

/// Character by character, since a part of a text may lie in several places.
QRectF placeOf(const QTextLine &line, int character)
{
    const qreal leading = line.cursorToX(character, QTextLine::Leading);
    const qreal trailing = line.cursorToX(character, QTextLine::Trailing);
    return {std::min(leading, trailing), line.y(), std::abs(trailing - leading), line.height()};
}

/// The layout is that of the text, at the origin.
void addPlaces(const QString &text, const QTextLayout &layout, const QPointF &origin,
               const QStringList &words, QVector<QRectF> &places)
{
    const QVector<TextPart> parts = partsWithWords(text, words);
    for (const TextPart &part : parts) {
        QRectF place;
        for (int at = part.begin; at < part.begin + part.length; ++at) {
            const QTextLine line = layout.lineForTextPosition(at);
            const QRectF next = line.isValid() ? placeOf(line, at) : QRectF();
            const bool isBeside = place.top() == next.top() && next.left() <= place.right() + 1
                                  && next.right() >= place.left() - 1;
            if (!place.isNull() && !isBeside)
                places.append(place.translated(origin));
            place = place.isNull() || !isBeside ? next : place.united(next);
        }
        places.append(place.translated(origin));
    }
}

QVector<QRectF> placesInPlainText(QString text, const QFont &font, const TextFrame &frame,
                                  const QStringList &words)
{
    QTextLayout layout(text.replace(QLatin1Char('\n'), QChar::LineSeparator), font);
    layout.setTextOption(frame.option());
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(frame.rect.width());
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    QVector<QRectF> places;
    addPlaces(layout.text(), layout, {frame.rect.left(), frame.top(height)}, words, places);
    return places;
}

QVector<QRectF> placesInDocument(QTextDocument &document, const QFont &font, const TextFrame &frame,
                                 const QStringList &words)
{
    document.setDefaultFont(font);
    document.setDocumentMargin(0);
    document.setDefaultTextOption(frame.option());
    document.setTextWidth(frame.rect.width());
    const QPointF origin(frame.rect.left(), frame.top(document.size().height()));
    QVector<QRectF> places;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        addPlaces(block.text(), *block.layout(), origin + block.layout()->position(), words,
                  places);
    return places;
}

/// Where a label draws its text.
QRect textRect(const QLabel &label, Qt::Alignment alignment)
{
    const int margin = label.margin();
    QRect rect = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    int indent = label.indent();
    if (indent < 0 && label.frameWidth() > 0)
        indent = label.fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - margin;
    if (indent <= 0)
        return rect;
    rect.adjust(alignment & Qt::AlignLeft ? indent : 0, alignment & Qt::AlignTop ? indent : 0,
                alignment & Qt::AlignRight ? -indent : 0,
                alignment & Qt::AlignBottom ? -indent : 0);
    return rect;
}

} // namespace

bool showsPlainText(const QLabel &label)
{
    return label.textFormat() == Qt::PlainText
           || (label.textFormat() == Qt::AutoText && !Qt::mightBeRichText(label.text()));
}

// A label reads its text in the text's direction, not in its own.
QVector<QRectF> placesInLabel(const QLabel &label, const QStringList &words)
{
    TextFrame frame;
    frame.wraps = label.wordWrap();
    if (showsPlainText(label)) {
        // Without a buddy its ampersands are not mnemonics but are shown.
        const QString text = label.buddy() ? shownWithoutMnemonic(label.text()) : label.text();
        frame.direction = text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
        frame.alignment = QStyle::visualAlignment(frame.direction, label.alignment());
        frame.rect = textRect(label, frame.alignment);
        return placesInPlainText(text, label.font(), frame, words);
    }
    frame.direction = Qt::LayoutDirectionAuto; // the document finds it, and which side is meant
    frame.alignment = label.alignment();
    frame.rect = textRect(label, frame.alignment);
    QTextDocument document;
    if (label.textFormat() == Qt::MarkdownText)
        document.setMarkdown(label.text());
    else
        document.setHtml(label.text());
    return placesInDocument(document, label.font(), frame, words);
}

QVector<QRectF> placesInCheckBox(const QCheckBox &box, const QStringList &words)
{
    QStyleOptionButton option;
    option.initFrom(&box);
    option.text = box.text();
    option.icon = box.icon();
    option.iconSize = box.iconSize();
    TextFrame frame;
    frame.direction = box.layoutDirection();
    frame.alignment = QStyle::visualAlignment(frame.direction, Qt::AlignLeft | Qt::AlignVCenter);
    QRect rect = box.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &box);
    if (!box.icon().isNull()) {
        const int width = box.iconSize().width() + kIconGap;
        const bool isMirrored = frame.direction == Qt::RightToLeft;
        rect.adjust(isMirrored ? 0 : width, 0, isMirrored ? -width : 0, 0);
    }
    frame.rect = rect;
    return placesInPlainText(shownWithoutMnemonic(box.text()), box.font(), frame, words);
}

} // namespace Tessark::PropertyHost
