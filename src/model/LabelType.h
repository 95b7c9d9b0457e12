#pragma once

#include "core/Dictionary.h"
#include "core/Types.h"

#include <QString>

/// One kind of label that can be chosen.
class LabelType
{
public:
    QString BrandName;
    Long ProductID = 0; ///< LabelProducts.ID
    QString Number;     ///< LabelNumbers.LabelNumber
};

/// Reads every kind of label there is into `types`, those of one product together. Raises the engine's errors.
void LoadLabelTypes(Dictionary<QString, LabelType>& types);

/// The brand name of a product; "" where there is no such product.
[[nodiscard]] QString LabelBrand(Long productID);
