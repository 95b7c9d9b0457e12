#pragma once

#include <QStringList>
#include <span>
#include <vector>

/// One category of the sample and how its people live.
struct SampleCategory
{
    QString name;
    QStringList subCategories;
    int share;                   ///< Of a hundred contacts.
    std::vector<int> properties; ///< Likelihood of 0, 1, 2 … properties.
    bool lets = false;           ///< Whether its properties are mostly let rather than sold.
    bool business = false;       ///< Whether its people mostly stand for a company.
    QStringList notes;           ///< What the agent writes down about them; %1 a town, %2 an amount in thousands.
    QStringList alerts;          ///< What the agent has to be reminded of; %1 a first name.
};

/// The whole tree: forty subcategories.
[[nodiscard]] std::span<const SampleCategory> SampleTree();
