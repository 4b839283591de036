#include "testing/EditRecorder.h"

#include "testing/ValueText_p.h"

#include <property/Property.h>

#include <QStringList>

#include <algorithm>

namespace Tessark::PropertyTest {

using namespace PropertyUI;

namespace {

QString textOf(const QVector<int> &flags)
{
    QStringList texts;
    for (const int flag : flags)
        texts.append(QString::number(flag));
    return texts.isEmpty() ? QStringLiteral("no flags") : texts.join(QLatin1Char(','));
}

QString textOf(const QVariantList &values)
{
    QStringList texts;
    for (const QVariant &value : values)
        texts.append(valueText(value));
    return texts.isEmpty() ? QStringLiteral("no edits") : texts.join(QStringLiteral(", "));
}

QString textOf(const RecordedEdits &edits)
{
    QStringList texts;
    for (const RecordedEdit &edit : edits)
        texts.append(QStringLiteral("%1 = %2 (%3)")
                         .arg(edit.name, valueText(edit.value), QString::number(edit.flags)));
    return texts.isEmpty() ? QStringLiteral("none") : texts.join(QStringLiteral(", "));
}

} // namespace

EditRecorder::EditRecorder(IPropertyEditorDelegate *delegate, QObject *parent)
    : QObject(parent)
{
    setDelegate(delegate);
}

EditRecorder::~EditRecorder() = default;

IPropertyEditorDelegate *EditRecorder::delegate() const
{
    return m_delegate;
}

void EditRecorder::setDelegate(IPropertyEditorDelegate *delegate)
{
    if (m_watched)
        m_watched->disconnect(this);
    m_delegate = delegate;
    m_watched = dynamic_cast<QObject *>(delegate);
    if (m_watched)
        connect(m_watched, &QObject::destroyed, this, [this] { m_delegate = nullptr; });
}

QVector<int> EditRecorder::flags() const
{
    QVector<int> flags;
    for (const RecordedEdit &edit : m_edits)
        flags.append(edit.flags);
    return flags;
}

QVariantList EditRecorder::values(const QString &name) const
{
    QVariantList values;
    for (const RecordedEdit &edit : m_edits) {
        if (edit.name == name)
            values.append(edit.value);
    }
    return values;
}

void EditRecorder::clear()
{
    m_edits.clear();
}

bool EditRecorder::expectFlags(const QVector<int> &flags)
{
    return expect(this->flags() == flags, QStringLiteral("flags ") + textOf(flags));
}

bool EditRecorder::expectEdits(const QString &name, const QVariantList &values)
{
    const QVariantList found = this->values(name);
    const bool isMet = std::equal(found.begin(), found.end(), values.begin(), values.end(), isSame);
    return expect(isMet, QStringLiteral("%1 = %2").arg(name, textOf(values)));
}

void EditRecorder::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    m_edits.append({property->name, value, static_cast<int>(flags)});
    if (m_delegate)
        m_delegate->setValue(property, value, flags);
}

QVariant EditRecorder::value(Property *property)
{
    return m_delegate ? m_delegate->value(property) : QVariant();
}

bool EditRecorder::expect(bool isMet, const QString &expected)
{
    m_error.clear();
    if (!isMet)
        m_error = QStringLiteral("expected %1; the edits are: %2").arg(expected, textOf(m_edits));
    return isMet;
}

} // namespace Tessark::PropertyTest
