#pragma once

#include "robustness/CallbackMatrix.h"

/// Dragging a slider's handle, by its place among the sliders.
Gesture sliderDrag(int index = 0);

/// An entry field gets the focus, then a widget of the host's.
Gesture focusMoves(int index);

/// All that can be done with a slider and an entry field; nothing for a place where none is.
QVector<Gesture> sliderGestures(int index = 0);
QVector<Gesture> fieldGestures(int index = 0);
QVector<Gesture> numberGestures();
