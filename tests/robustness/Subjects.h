#pragma once

#include "robustness/CallbackMatrix.h"

#include <QDialog>

// What the tables of several parts say.

inline const QString kSet = nameOf(Road::DelegateSetValue);
inline const QString kChanged = nameOf(Road::ValueChanged);
inline const QString kStarts = nameOf(Road::RunStarts);
inline const QString kEnds = nameOf(Road::RunEnds);

inline const QString kNoClient = QStringLiteral("only a color control has a client");
inline const QString kNoDialog = QStringLiteral("the editor opens none");
inline const QString kNoRuns = QStringLiteral("each edit stands alone");
inline const QString kNoTimer = QStringLiteral("nothing repeats while it is held");
inline const QString kNoKit = QStringLiteral("its controls are Qt's own");

/// Where the focus moves on to the host's own field.
inline const Impossible kFocusGoesToHost{
    QStringLiteral("deletes the window"),
    QStringLiteral("Qt goes on with the host's widget that gets the focus")};

/// A subject of that type, with the second of its values as default. Settings are for the property.
inline Subject subjectOf(const QString &name, const QString &type, const QVector<QVariant> &values,
                         const std::function<void(Tessark::PropertyUI::Property &)> &settings = {})
{
    Subject subject;
    subject.name = name;
    subject.type = type;
    subject.values = values;
    subject.describe = [=](TestSupport::PropertySet &set) {
        auto &property = set.add(kSubjectName, type);
        property.setDefaultValue(values.value(1));
        if (settings)
            settings(property);
    };
    return subject;
}
