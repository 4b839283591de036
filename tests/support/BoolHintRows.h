#pragma once

#include "property/Property.h"

#include <QSize>
#include <QTest>

/// Adds rows of what a host may put into a hint that is read as a bool: "present" tells whether the
/// hint is there, "hint" what it holds, "expected" how it reads when an absent one reads as
/// fallback.
inline void addBoolHintRows(bool fallback)
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<bool>("expected");
    QTest::newRow("absent") << false << QVariant() << fallback;
    QTest::newRow("an invalid variant counts as absent") << true << QVariant() << fallback;
    QTest::newRow("true") << true << QVariant(true) << true;
    QTest::newRow("false") << true << QVariant(false) << false;
    QTest::newRow("one") << true << QVariant(1) << true;
    QTest::newRow("zero") << true << QVariant(0) << false;
    QTest::newRow("text") << true << QVariant(QStringLiteral("yes")) << true;
    QTest::newRow("text 'false'") << true << QVariant(QStringLiteral("false")) << false;
    QTest::newRow("null") << true << QVariant::fromValue(nullptr) << false;
    QTest::newRow("a size, which is no bool") << true << QVariant(QSize(1, 1)) << false;
}

/// Gives the property the hint of the current row of addBoolHintRows().
inline void applyBoolHintRow(Tessark::PropertyUI::Property &property, const QString &key)
{
    QFETCH(bool, present);
    QFETCH(QVariant, hint);
    if (present)
        property.setHint(key, hint);
}
