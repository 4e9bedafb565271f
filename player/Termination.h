#pragma once

namespace tambrelle {

/// From now on SIGTERM is a request. A process that does not get round to it ends all the same, a second
/// later.
void takeTerminationAsARequest();

/// Whether it has come.
bool terminationRequested();

} // namespace tambrelle
