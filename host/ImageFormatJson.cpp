#include "host/ImageFormatJson_p.h"

#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"

namespace Tessark::PropertyHost {

using PropertyUI::ImageFormatDesc;

namespace {

const QLatin1String kKeyFormat("format");
const QLatin1String kKeyRate("compressionRate");

constexpr int kMaximumRate = 100;
constexpr int kGoodRate = 80;

const QStringList &formats()
{
    static const QStringList s_formats{QStringLiteral("png"), QStringLiteral("jpeg"),
                                       QStringLiteral("tiff"), QStringLiteral("bmp")};
    return s_formats;
}

std::optional<QString> formatFromJson(const QJsonValue &json, ConversionError &error)
{
    auto format = textFromJson(json, error);
    if (!format || formats().contains(*format))
        return format;
    error.message = Messages::tr("%1 is not one of %2%3")
                        .arg(quoted(*format), formats().join(QLatin1String(", ")),
                             suggestion(*format, formats()));
    return std::nullopt;
}

std::optional<int> rateFromJson(const QJsonValue &json, ConversionError &error)
{
    const auto rate = integerFromJson(json, error);
    if (!rate || (*rate >= 0 && *rate <= kMaximumRate))
        return rate;
    error.message = Messages::tr("a compression rate must lie between 0 and %1").arg(kMaximumRate);
    return std::nullopt;
}

} // namespace

ImageFormatDesc defaultImageFormat()
{
    return {formats().constFirst(), kGoodRate};
}

std::optional<QVariant> imageFormatFromJson(const QJsonValue &json, ConversionError &error)
{
    if (!json.isObject()) {
        error.message = expectedMessage(Messages::tr("an object with \"format\""), json);
        return std::nullopt;
    }
    const QJsonObject object = json.toObject();
    if (!checkKeys(object, {kKeyFormat, kKeyRate}, kKeyFormat, error))
        return std::nullopt;
    const auto format = formatFromJson(object.value(kKeyFormat), error);
    if (!format) {
        error.path = childPointer(QString(), kKeyFormat);
        return std::nullopt;
    }
    const auto rate =
        object.contains(kKeyRate) ? rateFromJson(object.value(kKeyRate), error) : std::optional(0);
    if (!rate) {
        error.path = childPointer(QString(), kKeyRate);
        return std::nullopt;
    }
    return QVariant::fromValue(ImageFormatDesc{*format, *rate});
}

QJsonValue imageFormatToJson(const QVariant &value)
{
    const auto desc = value.value<ImageFormatDesc>();
    if (!formats().contains(desc.format) || desc.compressionRate < 0
        || desc.compressionRate > kMaximumRate)
        return QJsonValue::Undefined;
    QJsonObject object{{kKeyFormat, desc.format}};
    if (desc.compressionRate != 0)
        object.insert(kKeyRate, desc.compressionRate);
    return object;
}

} // namespace Tessark::PropertyHost
