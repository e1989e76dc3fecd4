#pragma once

namespace zolv {

/// Puts every field and all state to their design-time values, with the built-in texts, as before the load; and
/// connects the events. A second start and each test begin with it.
void FreshStart();

}  // namespace zolv
