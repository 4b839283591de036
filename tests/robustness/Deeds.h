#pragma once

#include "robustness/Bench.h"

#include <QVector>

/// Something that a host does in a callback, and what it leaves.
struct Deed
{
    QString name;
    std::function<void(Bench &)> act;
    std::function<void(Bench &)> actLater; // a deletion, left to the event loop
    bool leavesPanel = true;               // this one or another
    bool leavesEditor = true;
    bool leavesWidget = true;
};

const QVector<Deed> &deeds();
