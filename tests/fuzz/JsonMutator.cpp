#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>

// Changes JSON documents as trees, so that most of what a fuzzer tries is still JSON.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned seed);

namespace {

using Random = std::minstd_rand;

bool oneIn(Random &random, unsigned count)
{
    return random() % count == 0;
}

int below(Random &random, qsizetype count)
{
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

/// Every value of a document, to be put elsewhere.
void collect(const QJsonValue &value, QVector<QJsonValue> &values)
{
    values.append(value);
    if (value.isArray()) {
        for (const QJsonValue element : value.toArray())
            collect(element, values);
    } else if (value.isObject()) {
        for (const QJsonValue element : value.toObject())
            collect(element, values);
    }
}

QJsonValue newValue(Random &random, const QVector<QJsonValue> &others)
{
    const QJsonValue table[] = {0,
                                1,
                                -1,
                                0.5,
                                2147483647,
                                2147483648.0,
                                1e300,
                                -1e300,
                                true,
                                QJsonValue(),
                                QString(),
                                QStringLiteral("red"),
                                QStringLiteral("1 2 3"),
                                QJsonArray{},
                                QJsonArray{1, 2},
                                QJsonArray{1, 2, 3},
                                QJsonArray{1, 2, 3, 4},
                                QJsonObject{}};
    return oneIn(random, 2) ? others.at(below(random, others.size()))
                            : table[below(random, std::size(table))];
}

QJsonValue mutated(const QJsonValue &value, Random &random, const QVector<QJsonValue> &others);

QJsonValue mutatedArray(QJsonArray array, Random &random, const QVector<QJsonValue> &others)
{
    const int index = below(random, array.size());
    switch (random() % 6) {
    case 0:
        array.removeAt(index);
        break;
    case 1:
        array.insert(index, newValue(random, others));
        break;
    case 2:
        array.insert(below(random, array.size()), array.at(index));
        break;
    case 3: {
        const QJsonValue element = array.takeAt(index);
        array.insert(below(random, array.size() + 1), element);
        break;
    }
    default:
        array[index] = mutated(array.at(index), random, others);
    }
    return array;
}

QJsonValue mutatedObject(QJsonObject object, Random &random, const QVector<QJsonValue> &others)
{
    const QStringList keys = object.keys();
    const QString &key = keys.at(below(random, keys.size()));
    switch (random() % 6) {
    case 0:
        object.remove(key);
        break;
    case 1: {
        // Keys of the library come as texts from the dictionary and from other values.
        const QString other = newValue(random, others).toString();
        object.insert(other, object.value(key));
        break;
    }
    default:
        object[key] = mutated(object.value(key), random, others);
    }
    return object;
}

QJsonValue mutated(const QJsonValue &value, Random &random, const QVector<QJsonValue> &others)
{
    if (oneIn(random, 4))
        return newValue(random, others);
    if (value.isArray() && !value.toArray().isEmpty())
        return mutatedArray(value.toArray(), random, others);
    if (value.isObject() && !value.toObject().isEmpty())
        return mutatedObject(value.toObject(), random, others);
    return newValue(random, others);
}

QByteArray mutatedDocument(const QJsonDocument &document, Random &random)
{
    const QJsonValue root =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    QVector<QJsonValue> values;
    collect(root, values);
    const QJsonValue result = document.isArray() ? mutatedArray(document.array(), random, values)
                                                 : mutatedObject(document.object(), random, values);
    const QJsonDocument changed =
        result.isArray() ? QJsonDocument(result.toArray()) : QJsonDocument(result.toObject());
    return changed.toJson(QJsonDocument::Compact);
}

} // namespace

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                    unsigned seed)
{
    Random random(seed + 1);
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if ((document.array().isEmpty() && document.object().isEmpty()) || oneIn(random, 3))
        return LLVMFuzzerMutate(data, size, maxSize);
    const QByteArray result = mutatedDocument(document, random);
    if (std::size_t(result.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, result.constData(), std::size_t(result.size()));
    return std::size_t(result.size());
}
