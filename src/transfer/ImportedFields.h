#pragma once

class Contact;
class PropDetail;
class Recordset;

/// Sets what an import takes of a contact, from the current row, whether the contact is new or not: all but the names,
/// the place in the tree and the default property. A Null is an empty text.
void SetImportedFields(Contact& contact, Recordset& row);

/// Sets what an import takes of a property. Not read are Notes, Picture, Video and RentalAmount; and the five flags,
/// written as codes where only the words are known here, come out unset. All of this is meant. Only a date may be Null:
/// raises 94 for any other.
void SetImportedFields(PropDetail& property, Recordset& row);
