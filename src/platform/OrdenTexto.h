// SPDX-License-Identifier: GPL-3.0-or-later
// The order of texts in a list, the same in every locale: case is ignored, an accent counts only
// between texts that are otherwise equal, and Ñ is a letter of its own after N.
#pragma once

#include <string>
#include <string_view>

namespace tessario {

// The order of these keys is that of their texts; equal keys are texts that only case tells apart.
// For many texts each key is worth keeping. UTF-8 in; a byte that is none counts as itself.
std::u32string ClaveDeOrden(std::string_view texto);

// Does `a` stand before `b`?
bool VaAntes(std::string_view a, std::string_view b);

}  // namespace tessario
