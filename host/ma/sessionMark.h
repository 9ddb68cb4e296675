// SPDX-License-Identifier: Apache-2.0
// What a session says about itself while a file is read or written.
#pragma once

namespace host::ma
{

// Sets a mark of the session for as long as this lives, then puts back what was there.
class SessionMark
{
public:
    explicit SessionMark(bool &mark) : mark_(mark), before_(mark) { mark_ = true; }
    ~SessionMark() { mark_ = before_; }
    SessionMark(const SessionMark &) = delete;
    SessionMark &operator=(const SessionMark &) = delete;

private:
    bool &mark_;
    bool before_;
};

} // namespace host::ma
