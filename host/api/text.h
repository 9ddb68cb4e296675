// SPDX-License-Identifier: Apache-2.0
// Text between the API (MString) and the host (std::string), both UTF-8, and numbers as text in
// every locale alike.
#pragma once

#include <string>
#include <string_view>

#include <maya/MString.h>

namespace host
{

std::string_view view(const MString &text); // valid as long as `text` is unchanged
std::string toString(const MString &text);
MString toMString(std::string_view text);

// As printf's %g writes it in the C locale: six digits, "0.5", "1e-07".
std::string generalText(double number);
// With exactly `places` decimal places.
std::string fixedText(double number, int places);
// The number at the start of `text`, blanks before it skipped. `rest` gets what follows it; false
// and no change when there is none.
bool leadingNumber(std::string_view text, double &number, std::string_view &rest);
// The number that `text` is as a whole, blanks around it allowed.
bool wholeNumber(std::string_view text, double &number);

// `"text"` as MEL writes a string.
std::string melString(std::string_view text);

// Between UTF-8 and wide characters. Bytes that are no UTF-8 become U+FFFD, one by one.
std::wstring toWide(std::string_view text);
std::string toUtf8(std::wstring_view text);

} // namespace host
