#pragma once

#include "zendara/controls/control.hpp"

namespace zendara
{

// The saved properties of the nine controls, in the order of reading. The keys are part of hosts' saved documents and
// stand as they are, their faults included.

std::vector<StoredProperty> const& stored_properties_of_line_scan();
std::vector<StoredProperty> const& stored_properties_of_2d();
std::vector<StoredProperty> const& stored_properties_of_2ds();
std::vector<StoredProperty> const& stored_properties_of_2dc();
std::vector<StoredProperty> const& stored_properties_of_3d();
std::vector<StoredProperty> const& stored_properties_of_3ds();
std::vector<StoredProperty> const& stored_properties_of_histogram();
std::vector<StoredProperty> const& stored_properties_of_2dv();
std::vector<StoredProperty> const& stored_properties_of_3db();

} // namespace zendara
