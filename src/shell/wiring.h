#pragma once

namespace zolv {

/// Connects every event of a field and every follow-up to the chain that it starts. The chains of the program stand in
/// wiring.cpp and nowhere else.
void WireEvents();

}  // namespace zolv
