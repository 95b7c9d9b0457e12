#pragma once

#include <QDate>

class Store;

/// What the sample is made of. The same plan always gives the same agency.
struct SamplePlan
{
    int contacts = 2000;
    quint64 seed = 1;
    QDate today; ///< The day around which alerts, listings and leases lie.
};

/// Fills a freshly made store with the categories, contacts, properties, alerts and letters of an invented agency, in
/// one transaction. Raises std::runtime_error, and changes nothing, when the store holds categories already.
void FillAgency(const Store& store, const SamplePlan& plan);
