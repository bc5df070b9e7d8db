#pragma once

#include "ocore/OrdoParse/XmlForm.h"

/// The XML forms.
namespace zent::xmlForm {

/// The public form of a ticket, under the attribute names and syntaxes of the Internet Printing
/// Protocol. The root holds at most two category elements, each made when the first attribute goes
/// into it, and those hold the attributes. Writing an attribute that no category lists raises
/// OrdoParseException (code 7); reading takes an attribute wherever it stands.
extern const XmlForm ordo;
/// A ticket as it lies in a state blob: short codes for syntaxes, and abbreviations for the names
/// and values that the feature tables know. It is for this system alone. A text that merely looks
/// like an abbreviation, or begins with an asterisk, is written with an asterisk in front.
extern const XmlForm smallOrdo;
/// The capability document of a printer: a flat list of attribute elements, not validated.
extern const XmlForm ocap;
/// The media library of a user: a flat list of attribute elements, not validated.
extern const XmlForm mediaPreference;

} // namespace zent::xmlForm
