// SPDX-License-Identifier: Apache-2.0
#include "api/commandResult.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "api/apiAccess.h"
#include "api/status.h"
#include "api/text.h"

namespace host
{

using mel::MelValue;

namespace
{

int clampedToInt(long long number)
{
    constexpr long long kLow = std::numeric_limits<int>::min();
    constexpr long long kHigh = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(number, kLow, kHigh));
}

int clampedToInt(double number)
{
    if (std::isnan(number))
        return 0;
    constexpr double kLow = std::numeric_limits<int>::min();
    constexpr double kHigh = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(number, kLow, kHigh));
}

// The elements of a value as `Number`s; false when it holds text or nothing.
template <class Element, class Convert>
bool listNumbers(const MelValue &value, std::vector<Element> &list, Convert toElement)
{
    if (const auto *whole = std::get_if<long long>(&value))
        list.push_back(toElement(*whole));
    else if (const auto *number = std::get_if<double>(&value))
        list.push_back(toElement(*number));
    else if (const auto *wholes = std::get_if<std::vector<long long>>(&value))
        std::transform(wholes->begin(), wholes->end(), std::back_inserter(list), toElement);
    else if (const auto *numbers = std::get_if<std::vector<double>>(&value))
        std::transform(numbers->begin(), numbers->end(), std::back_inserter(list), toElement);
    else
        return false;
    return true;
}

template <class Element>
std::vector<Element> asList(const MelValue &value)
{
    if (const auto *list = std::get_if<std::vector<Element>>(&value))
        return *list;
    if (const auto *single = std::get_if<Element>(&value))
        return {*single};
    return {};
}

} // namespace

bool convert(const MelValue &value, int &result)
{
    if (const auto *whole = std::get_if<long long>(&value))
        result = clampedToInt(*whole);
    else if (const auto *number = std::get_if<double>(&value))
        result = clampedToInt(*number);
    else
        return false;
    return true;
}

bool convert(const MelValue &value, double &result)
{
    if (const auto *whole = std::get_if<long long>(&value))
        result = static_cast<double>(*whole);
    else if (const auto *number = std::get_if<double>(&value))
        result = *number;
    else
        return false;
    return true;
}

bool convert(const MelValue &value, MString &result)
{
    const auto *text = std::get_if<std::string>(&value);
    if (text)
        result = toMString(*text);
    return text;
}

bool convert(const MelValue &value, MIntArray &result)
{
    std::vector<int> list;
    if (!listNumbers(value, list, [](auto number) { return clampedToInt(number); }))
        return false;
    result = MIntArray(list.data(), static_cast<unsigned int>(list.size()));
    return true;
}

bool convert(const MelValue &value, MDoubleArray &result)
{
    std::vector<double> list;
    if (!listNumbers(value, list, [](auto number) { return static_cast<double>(number); }))
        return false;
    result = MDoubleArray(list.data(), static_cast<unsigned int>(list.size()));
    return true;
}

bool convert(const MelValue &value, MStringArray &result)
{
    if (!std::holds_alternative<std::string>(value) &&
        !std::holds_alternative<std::vector<std::string>>(value))
        return false;
    MStringArray list;
    for (const std::string &text : asList<std::string>(value))
        list.append(toMString(text));
    result = list;
    return true;
}

void append(MelValue &value, long long element)
{
    if (std::holds_alternative<double>(value) || std::holds_alternative<std::vector<double>>(value))
        return append(value, static_cast<double>(element));
    std::vector<long long> list = asList<long long>(value);
    list.push_back(element);
    value = std::move(list);
}

void append(MelValue &value, double element)
{
    std::vector<double> list;
    listNumbers(value, list, [](auto number) { return static_cast<double>(number); });
    list.push_back(element);
    value = std::move(list);
}

void append(MelValue &value, const std::string &element)
{
    std::vector<std::string> list = asList<std::string>(value);
    list.push_back(element);
    value = std::move(list);
}

} // namespace host

namespace
{

template <class Result>
MStatus getResultOf(const std::shared_ptr<const host::ResultBody> &body, Result &result)
{
    return body && host::convert(body->value, result) ? MStatus::kSuccess : MStatus::kFailure;
}

} // namespace

MCommandResult::MCommandResult(MStatus *ReturnStatus)
{
    host::report(ReturnStatus);
}
MCommandResult::~MCommandResult() = default;
const char *MCommandResult::className()
{
    return "MCommandResult";
}

MCommandResult::Type MCommandResult::resultType(MStatus *ReturnStatus) const
{
    // In the order of the alternatives of MelValue.
    constexpr Type kTypes[] = {kInvalid,  kInt,         kDouble,     kString,
                               kIntArray, kDoubleArray, kStringArray};
    host::report(ReturnStatus);
    return body_ ? kTypes[body_->value.index()] : kInvalid;
}

MStatus MCommandResult::getResult(int &result) const
{
    return getResultOf(body_, result);
}
MStatus MCommandResult::getResult(MIntArray &result) const
{
    return getResultOf(body_, result);
}
MStatus MCommandResult::getResult(double &result) const
{
    return getResultOf(body_, result);
}
MStatus MCommandResult::getResult(MDoubleArray &result) const
{
    return getResultOf(body_, result);
}
MStatus MCommandResult::getResult(MString &result) const
{
    return getResultOf(body_, result);
}
MStatus MCommandResult::getResult(MStringArray &result) const
{
    return getResultOf(body_, result);
}
