#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QTranslator>

/// While it lives, puts every text of one translation context into brackets.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char *context)
        : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }

    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (m_context != context)
            return QString();
        return QLatin1Char('[') + QString::fromUtf8(sourceText) + QLatin1Char(']');
    }

    bool isEmpty() const override { return false; }

private:
    QByteArray m_context;
};
