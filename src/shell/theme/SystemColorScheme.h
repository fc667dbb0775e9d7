#pragma once

// Whether the desktop asks for dark windows. The first call has to come before a palette of ours is
// set: older Qt knows the desktop's wish only by the palette it brings.
bool systemPrefersDark();
