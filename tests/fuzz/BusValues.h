#pragma once

#include <QVariantList>

#include <fuzzer/FuzzedDataProvider.h>

namespace tambrelle::fuzz {

/// Once, before any value is sent.
void registerBusTypes();

/// Up to four values of any types of the protocol, nested to some depth.
[[nodiscard]] QVariantList busValues(FuzzedDataProvider& input);

/// Values of the types that this method takes; for an unknown one none.
[[nodiscard]] QVariantList expectedValues(QLatin1String method, FuzzedDataProvider& input);

} // namespace tambrelle::fuzz
