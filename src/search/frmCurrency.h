#pragma once

#include "search/RangeForm.h"

/// Asks for a money criterion: "= $250,000.00", "Less Than ...", "More Than ...", "Between ... To ...".
class frmCurrency : public RangeForm
{
    Q_OBJECT

public:
    frmCurrency();

protected:
    void cmdbutton_Click(int index) override;

private:
    void OKClick();
};
