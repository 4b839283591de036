#pragma once

#include "host/ListOrigin.h"
#include "host/Problem.h"
#include "host/PropertyList.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Tessark::PropertyHost {

/// What readPropertyList() made of a document.
struct PropertyListResult
{
    PropertyList list;         // the rows that could be read, in order
    QVector<Problem> problems; // everything that is wrong, in the order of the document
};

/**
 * Reads a property list from its JSON form (UTF-8, a byte order mark is accepted).
 *
 * The document is an object with "version" (1), "properties" (an array of objects) and, if wanted,
 * "title" and "$schema". A property has "type" and, unless its type is structural, "name"; it may
 * have "label" (the name when absent), "min", "max", "hardMax", "default" and "hints". How the
 * values look is described at valueFromJson(). The file property-list.schema.json, installed with
 * the library, says the same in a form that text editors use to complete and check.
 *
 * Relative paths of pictures start at folder, which is the current one if empty, and the list keeps
 * it. The hint "textures" (kHostHintTextures) is an array; each entry is a path, or an object with
 * "file" and, unless it is the path, "name".
 *
 * All problems are listed, not only the first. A row whose type has no editor is left out with a
 * warning; so register editors of your own types in PropertyEditorRegistry before. A row with a bad
 * range, default or hint is read without it, and without the textures that cannot be read. A row that is no object, or has no usable type or
 * name, is left out, and so is the second row of a name; structural rows stay in without their name.
 * A rule with a mistake stays in the list, where RuleEngine passes over it.
 *
 * Of a stranger's list these are errors and left out as well, and listed before all others: pictures
 * outside of folder, wherever links lead, and pictures that can refer to other files, such as SVG;
 * style sheets; a text of more than 10,000 characters, more than 1,000,000 characters in all, 10,000
 * rows, 200,000 entries of arrays and objects, or 64 megapixels of pictures. Labels and static texts
 * that look like markup are warned of; showTextsAsWritten() makes a panel show them as text.
 */
TESSARK_PROPERTYHOST_EXPORT PropertyListResult
readPropertyList(const QByteArray &json, const QString &folder = QString(),
                 ListOrigin origin = ListOrigin::Trusted);

/// The same, telling also what does no harm but has no effect: hints that no editor of the row's
/// type reads. Together these are the problems of PropertyList::validate(), and those of rows that
/// cannot be read.
TESSARK_PROPERTYHOST_EXPORT PropertyListResult
checkPropertyList(const QByteArray &json, const QString &folder = QString(),
                  ListOrigin origin = ListOrigin::Trusted);

} // namespace Tessark::PropertyHost
