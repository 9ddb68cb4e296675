// SPDX-License-Identifier: Apache-2.0
// Making, joining and comparing strings. Looking into them is in MStringText.cpp.
#include <maya/MString.h>

#include <ostream>

#include "api/text.h"

namespace
{

std::string bytes(const char *text)
{
    return text ? std::string(text) : std::string();
}

std::string bytes(const char *text, int length)
{
    return text && length > 0 ? std::string(text, static_cast<std::size_t>(length)) : std::string();
}

} // namespace

MString::MString() = default;
MString::MString(const char *text) : text_(bytes(text)) {}
MString::MString(const wchar_t *text) : text_(host::toUtf8(text ? text : L"")) {}
MString::MString(const char *text, int charLength) : text_(bytes(text, charLength)) {}
MString::MString(const wchar_t *text, int wcharLength)
    : text_(host::toUtf8(
          {text ? text : L"", text && wcharLength > 0 ? static_cast<std::size_t>(wcharLength) : 0}))
{
}
MString::MString(const MString &other) : text_(other.text_) {}
MString::~MString() = default;

MString &MString::operator+=(const MString &other)
{
    text_ += other.text_;
    return *this;
}

MString &MString::operator+=(const char *other)
{
    text_ += bytes(other);
    return *this;
}

MString &MString::operator+=(double number)
{
    text_ += host::generalText(number);
    return *this;
}

MString &MString::operator+=(int number)
{
    text_ += std::to_string(number);
    return *this;
}

MString &MString::operator+=(unsigned int number)
{
    text_ += std::to_string(number);
    return *this;
}

MString &MString::operator+=(float number)
{
    return *this += static_cast<double>(number);
}

MString &MString::operator=(const MString &other)
{
    text_ = other.text_;
    return *this;
}

MString &MString::operator=(const char *text)
{
    text_ = bytes(text);
    return *this;
}

MString &MString::operator=(double number)
{
    text_ = host::generalText(number);
    return *this;
}

bool MString::operator==(const MString &other) const
{
    return text_ == other.text_;
}
bool MString::operator==(const char *other) const
{
    return text_ == (other ? other : "");
}
bool MString::operator!=(const MString &other) const
{
    return !(*this == other);
}
bool MString::operator!=(const char *other) const
{
    return !(*this == other);
}
MString MString::operator+(const MString &other) const
{
    return MString(*this) += other;
}
MString MString::operator+(const char *other) const
{
    return MString(*this) += other;
}
MString MString::operator+(double number) const
{
    return MString(*this) += number;
}

MStatus MString::set(const char *text)
{
    text_ = bytes(text);
    return MStatus::kSuccess;
}

MStatus MString::setUTF8(const char *text)
{
    return set(text);
}

MStatus MString::setWChar(const wchar_t *text)
{
    text_ = host::toUtf8(text ? text : L"");
    return MStatus::kSuccess;
}

MStatus MString::set(const char *text, int charLength)
{
    text_ = bytes(text, charLength);
    return MStatus::kSuccess;
}

MStatus MString::set(double value)
{
    text_ = host::generalText(value);
    return MStatus::kSuccess;
}

MStatus MString::set(double value, int precision)
{
    text_ = host::fixedText(value, precision);
    return MStatus::kSuccess;
}

const char *MString::asChar() const
{
    return text_.c_str();
}
const char *MString::asUTF8() const
{
    return text_.c_str();
}

const wchar_t *MString::asWChar() const
{
    wide_ = std::make_unique<std::wstring>(host::toWide(text_));
    return wide_->c_str();
}

unsigned int MString::length() const
{
    return static_cast<unsigned int>(text_.size());
}

unsigned int MString::numChars() const
{
    return static_cast<unsigned int>(host::toWide(text_).size());
}

void MString::clear()
{
    text_.clear();
}

MAYA_API_NAMESPACE_ENTER

std::ostream &operator<<(std::ostream &stream, const MString &text)
{
    return stream << text.text_;
}

MString operator+(const char *left, const MString &right)
{
    return MString(left) += right;
}

MAYA_API_NAMESPACE_EXIT
