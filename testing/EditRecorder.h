#pragma once

#include "testing/PropertyTestExport.h"

#include <property/IPropertyEditorDelegate.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>

namespace Tessark::PropertyTest {

/// An edit that a panel passed to its delegate.
struct RecordedEdit
{
    QString name; // of the property
    QVariant value;
    int flags = 0; // IPropertyEditorDelegate::ChangeFlags: 1 for one that continues a run
};

using RecordedEdits = QVector<RecordedEdit>;

/**
 * Stands in front of a delegate and notes every edit before it passes it on.
 *
 *     EditRecorder recorder(&store);
 *     PropertyEditorPanel panel(properties, &recorder, nullptr);
 *     ...
 *     QVERIFY2(recorder.expectFlags({0, 1, 1}), qPrintable(recorder.error()));
 *
 * The delegate belongs to the host. One that is a QObject may be deleted at any time; any other must
 * outlive the recorder or be taken away by setDelegate(nullptr). Recorder and panel may be deleted in
 * what the delegate is told.
 */
class TESSARK_PROPERTYTEST_EXPORT EditRecorder : public QObject,
                                                 public PropertyUI::IPropertyEditorDelegate
{
    Q_OBJECT

public:
    /// delegate may be null: edits are noted then, and all values are invalid.
    explicit EditRecorder(PropertyUI::IPropertyEditorDelegate *delegate, QObject *parent = nullptr);
    ~EditRecorder() override;

    /// The delegate behind, or null when there is none or it was deleted.
    PropertyUI::IPropertyEditorDelegate *delegate() const;
    void setDelegate(PropertyUI::IPropertyEditorDelegate *delegate);

    /// All edits since the recorder was made or clear() was called, the oldest first.
    const RecordedEdits &edits() const { return m_edits; }
    QVector<int> flags() const;

    /// The values of the edits of properties with this name.
    QVariantList values(const QString &name) const;

    /// Forgets the edits so far.
    void clear();

    /// Whether these are the flags of all edits, in order. If not, error() says what they are.
    bool expectFlags(const QVector<int> &flags);

    /// Whether these are the values that name was set to, in order. Numbers may differ by rounding,
    /// one part in a million and colours by a 16-bit step; values are compared with their text form
    /// where a text is expected and the value is none.
    bool expectEdits(const QString &name, const QVariantList &values);

    /// What the last expectation missed; empty when it was met.
    QString error() const { return m_error; }

    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(PropertyUI::Property *property) override;

private:
    bool expect(bool isMet, const QString &expected);

    PropertyUI::IPropertyEditorDelegate *m_delegate = nullptr; // not owned
    QPointer<QObject> m_watched;                               // the delegate, if it is an object
    RecordedEdits m_edits;
    QString m_error;
};

} // namespace Tessark::PropertyTest
