#pragma once

#include "json.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/support/object.hpp"

#include <memory>
#include <string_view>
#include <vector>

namespace zendara::program
{

/// Makes an object of a class that scripts may name.
/// @param options  an object; those that the class does not know are not looked at
/// @throws Failure  NoSuchMember for an unknown class, TypeMismatch for an option of another type
std::unique_ptr<Object> make_object(std::string_view class_name, Json const& options, HeadlessPlatform& platform);

} // namespace zendara::program
