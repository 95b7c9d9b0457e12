#pragma once

#include <QByteArrayView>
#include <QString>

// The published XML form of a rowset, as ADO's Recordset.Save writes it with persistence format 1 (adPersistXML):
//
//   <xml xmlns:s='uuid:…' xmlns:dt='uuid:…' xmlns:rs='urn:schemas-microsoft-com:rowset' xmlns:z='#RowsetSchema'>
//   <s:Schema id='RowsetSchema'>
//       <s:ElementType name='row' content='eltOnly'>
//           <s:AttributeType name='ID' rs:number='1' …><s:datatype dt:type='int' …/></s:AttributeType>
//           …
//       </s:ElementType>
//   </s:Schema>
//   <rs:data>
//       <z:row ID='17' …/>
//   </rs:data>
//   </xml>
//
// The values are the attributes of the rows; a Null has no attribute.

namespace RowsetForm {

inline constexpr QByteArrayView SchemaSpace = "uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882";
inline constexpr QByteArrayView TypeSpace = "uuid:C2F41010-65B3-11d1-A29F-00AA00C14882";
inline constexpr QByteArrayView RowsetSpace = "urn:schemas-microsoft-com:rowset";
inline constexpr QByteArrayView RowSpace = "#RowsetSchema";

/// The value of a row's attribute of a data type (dt:type) as this program keeps it: a date becomes its default text,
/// every other value stays as it is written. Raises 3421 for a value that is none of the type or does not fit it; a
/// type that is not known holds any text.
[[nodiscard]] QString ReadValue(const QString& type, const QString& value);

} // namespace RowsetForm
