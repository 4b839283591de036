#pragma once

#include <QMimeData>
#include <QVariant>

/// The second parameter of QMimeData::retrieveData(), whose type depends on the version of Qt.
class MimeDataType : public QMimeData
{
    template <typename Result, typename Class, typename Format, typename Type>
    static Type typeOf(Result (Class::*)(Format, Type) const);

public:
    using Type = decltype(typeOf(&MimeDataType::retrieveData));
};

/// Mime data that counts how often its content is asked for.
class CountingMimeData : public QMimeData
{
public:
    mutable int readings = 0;

protected:
    QVariant retrieveData(const QString &format, MimeDataType::Type type) const override
    {
        ++readings;
        return QMimeData::retrieveData(format, type);
    }
};
