#pragma once

#include <host/ObjectBinding.h>
#include <host/PropertyStore.h>
#include <host/StructBinding.h>

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector2D>

#include <memory>

namespace Operations {

// The rows, by name. "reset" is an action.
inline const QString kGain = QStringLiteral("gain");
inline const QString kLimit = QStringLiteral("limit");
inline const QString kCount = QStringLiteral("count");
inline const QString kOn = QStringLiteral("on");
inline const QString kTitle = QStringLiteral("title");
inline const QString kMode = QStringLiteral("mode");
inline const QString kPlace = QStringLiteral("place");
inline const QString kReset = QStringLiteral("reset");

inline constexpr int kHighestGain = 20; // that the list declares
inline constexpr int kHighestLimit = 16;
inline constexpr int kHighestCount = 200;
inline constexpr int kModes = 3;

/// What an object is to begin with, and what its rows are.
struct ObjectFacts
{
    QHash<QString, QVariant> initial;
    QHash<QString, QVariant> defaults; // of its own rows
    bool hasGroup = true;              // of "count" and "on"
    bool hasAction = true;
};

/// An object of the host: its rows, and what keeps its values.
class EditedObject
{
public:
    virtual ~EditedObject();

    virtual const Tessark::PropertyHost::PropertyList &list() const = 0;
    virtual Tessark::PropertyUI::IPropertyEditorDelegate *delegate() const = 0;
    virtual ObjectFacts facts() const = 0;

    /// What it has, where there is a way around the delegate by that.
    virtual QVariant kept(const QString &row) const = 0;
    virtual void hostSets(const QString &row, const QVariant &value) = 0;

    /// How often its action was triggered.
    virtual int triggers() const = 0;

    /// Puts another one in its place, as new; with rows of its own, those are new as well.
    virtual void renew() = 0;
    virtual bool ownsRows() const = 0;

    virtual void watch(Tessark::PropertyUI::PropertyEditorPanel *panel);

    Tessark::PropertyUI::Property *row(const QString &name) const;

    /// The rules of its rows; "" for none.
    void setRules(const QString &placeVisible, const QString &titleEnabled, bool gainFollows) const;
};

/// Three kinds that have most rows in common: numbers 0 to 2 are stores, of which the second has
/// another default and the third lacks "limit"; a struct; an object without "mode", group and action.
std::unique_ptr<EditedObject> makeStoreObject(int number);
std::unique_ptr<EditedObject> makeStructObject();
std::unique_ptr<EditedObject> makeBoundObject();

} // namespace Operations
