// SPDX-License-Identifier: Apache-2.0
#include <maya/MColor.h>

#include <algorithm>
#include <cmath>

namespace
{

struct Triple {
    float first, second, third;
};

// Hue in degrees, saturation and value from 0 to 1 (Foley, van Dam: Computer Graphics, 13.3.4).
Triple fromHsv(float hue, float saturation, float value)
{
    float turn = std::fmod(hue, 360.0f);
    turn = (turn < 0.0f ? turn + 360.0f : turn) / 60.0f;
    const int sector = static_cast<int>(turn) % 6;
    const float part = turn - std::floor(turn);
    const float low = value * (1.0f - saturation);
    const float falling = value * (1.0f - saturation * part);
    const float rising = value * (1.0f - saturation * (1.0f - part));
    const Triple sectors[] = {{value, rising, low},  {falling, value, low}, {low, value, rising},
                              {low, falling, value}, {rising, low, value},  {value, low, falling}};
    return sectors[sector];
}

Triple toHsv(float r, float g, float b)
{
    const float high = std::max({r, g, b});
    const float range = high - std::min({r, g, b});
    if (range <= 0.0f)
        return {0.0f, 0.0f, high};
    float sixth = 0.0f;
    if (high == r)
        sixth = (g - b) / range;
    else if (high == g)
        sixth = 2.0f + (b - r) / range;
    else
        sixth = 4.0f + (r - g) / range;
    return {sixth < 0.0f ? sixth * 60.0f + 360.0f : sixth * 60.0f, range / high, high};
}

} // namespace

const MColor MColor::kOpaqueBlack;

MColor::MColor() : r(0.0f), g(0.0f), b(0.0f), a(1.0f) {}
MColor::MColor(const MColor &other) = default;
MColor::MColor(float rr, float gg, float bb, float aa) : r(rr), g(gg), b(bb), a(aa) {}
MColor::MColor(const float d[3]) : r(d[0]), g(d[1]), b(d[2]), a(1.0f) {}
MColor::MColor(float alpha) : r(0.0f), g(0.0f), b(0.0f), a(alpha) {}
MColor::~MColor() = default;
MColor &MColor::operator=(const MColor &other) = default;

MColor::MColor(MColorType model, float c1, float c2, float c3, float alpha) : MColor()
{
    set(model, c1, c2, c3, alpha);
}

MColor::MColor(MColorType model, unsigned char c1, unsigned char c2, unsigned char c3,
               unsigned char alpha)
    : MColor(model, c1 / 255.0f, c2 / 255.0f, c3 / 255.0f, alpha / 255.0f)
{
}

MColor::MColor(MColorType model, unsigned short c1, unsigned short c2, unsigned short c3,
               unsigned short alpha)
    : MColor(model, c1 / 65535.0f, c2 / 65535.0f, c3 / 65535.0f, alpha / 65535.0f)
{
}

MColor::MColor(MColorType model, double c1, double c2, double c3, double alpha)
    : MColor(model, static_cast<float>(c1), static_cast<float>(c2), static_cast<float>(c3),
             static_cast<float>(alpha))
{
}

float MColor::operator()(unsigned int i) const
{
    return (*this)[i];
}
float &MColor::operator()(unsigned int i)
{
    return (*this)[i];
}

float MColor::operator[](unsigned int i) const
{
    return i == 0 ? r : i == 1 ? g : i == 2 ? b : a;
}
float &MColor::operator[](unsigned int i)
{
    return i == 0 ? r : i == 1 ? g : i == 2 ? b : a;
}

MColor MColor::operator*(float factor) const
{
    return {r * factor, g * factor, b * factor, a};
}

MColor MColor::operator+(const MColor &other) const
{
    return {r + other.r, g + other.g, b + other.b, a};
}

bool MColor::operator==(const MColor &other) const
{
    return r == other.r && g == other.g && b == other.b && a == other.a;
}

bool MColor::operator!=(const MColor &other) const
{
    return !(*this == other);
}

bool MColor::get(float d[3]) const
{
    d[0] = r;
    d[1] = g;
    d[2] = b;
    return true;
}

bool MColor::get(MColorType model, float &c1, float &c2, float &c3, float &alpha) const
{
    if (model == kCMYK)
        return false; // four components and alpha do not fit
    const Triple values = model == kHSV   ? toHsv(r, g, b)
                          : model == kCMY ? Triple{1.0f - r, 1.0f - g, 1.0f - b}
                                          : Triple{r, g, b};
    c1 = values.first;
    c2 = values.second;
    c3 = values.third;
    alpha = a;
    return true;
}

bool MColor::set(MColorType model, float c1, float c2, float c3, float alpha)
{
    if (model == kCMYK)
        return false;
    const Triple values = model == kHSV   ? fromHsv(c1, c2, c3)
                          : model == kCMY ? Triple{1.0f - c1, 1.0f - c2, 1.0f - c3}
                                          : Triple{c1, c2, c3};
    *this = MColor(values.first, values.second, values.third, alpha);
    return true;
}
