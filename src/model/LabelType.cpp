#include "model/LabelType.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"

using namespace Qt::StringLiterals;

void LoadLabelTypes(Dictionary<QString, LabelType>& types)
{
    Recordset products;
    products.Open(u"Select * from LabelProducts"_s, gConn);
    for (; !products.Eof(); products.MoveNext()) {
        const QString brand = products.Fields("BrandName"_L1).Get().Text();
        Recordset numbers;
        numbers.Open(u"Select * from LabelNumbers Where LabelProductID="_s + products.Fields("ID"_L1).Get().Text(),
                     gConn);
        for (; !numbers.Eof(); numbers.MoveNext()) {
            const Value product = numbers.Fields("LabelProductID"_L1).Get();
            const QString number = numbers.Fields("LabelNumber"_L1).Get().Text();
            types.Add(product.Text() + u' ' + number, {brand, product.ToLong(), number});
        }
    }
}

QString LabelBrand(Long productID)
{
    Recordset product;
    product.Open(u"Select BrandName from LabelProducts Where ID="_s + CStr(productID), gConn);
    return product.Eof() ? QString() : product.Fields(0).Get().Text();
}
