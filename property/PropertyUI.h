#pragma once

// Everything a host needs to show a panel, in one include.

#include "property/IPropertyEditorDelegate.h"
#include "property/Property.h"
#include "property/PropertyEditor.h"
#include "property/PropertyEditorPanel.h"
#include "property/PropertyEditorRegistry.h"
#include "property/PropertyVocabulary.h"
#include "property/TextureChoice.h"
#include "property/ValueCodecs.h"
