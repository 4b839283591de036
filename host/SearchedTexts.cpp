#include "host/SearchedTexts_p.h"

#include "host/HostHints.h"
#include "host/RowHelp_p.h"

#include <property/Property.h>
#include <property/PropertyVocabulary.h>
#include <property/TextureChoice.h>

#include <QTextDocument> // Qt::mightBeRichText()
#include <QTextDocumentFragment>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

QString labelOf(const Property &property)
{
    if (property.type == kPropertyTypeBeginGroup || property.type == kPropertyTypeTab)
        return shownWithoutMnemonic(property.label);
    return Qt::mightBeRichText(property.label)
               ? QTextDocumentFragment::fromHtml(property.label).toPlainText()
               : property.label;
}

QStringList choicesOf(const Property &property)
{
    QStringList texts;
    const QVariant choices = property.hint(kPropertyHintDisplayValues);
    if (choices.userType() == QMetaType::QStringList
        || choices.userType() == QMetaType::QVariantList)
        texts = choices.toStringList();
    const QVariantList textures = property.hint(kHostHintTextures).toList();
    for (const QVariant &texture : textures)
        texts.append(texture.value<TextureChoice>().name);
    return texts;
}

} // namespace

QString shownWithoutMnemonic(const QString &text)
{
    QString shown;
    for (auto at = text.cbegin(); at != text.cend(); ++at) {
        if (*at == QLatin1Char('&') && ++at == text.cend())
            break;
        shown += *at; // the second one of a pair, too
    }
    return shown;
}

QStringList textsOfRow(const Property &property)
{
    if (property.type == kPropertyTypeEndGroup || property.type == kPropertyTypeEndTabGroup)
        return {};
    return QStringList{labelOf(property), property.name, helpOf(property)} + choicesOf(property);
}

} // namespace Tessark::PropertyHost
