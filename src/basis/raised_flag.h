// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

/// A flag that stands as long as this object lives, and is then as it was before.
class RaisedFlag {
 public:
    explicit RaisedFlag(bool& flag) : flag_(flag), before_(flag) { flag = true; }
    ~RaisedFlag() { flag_ = before_; }
    RaisedFlag(const RaisedFlag&) = delete;
    RaisedFlag& operator=(const RaisedFlag&) = delete;

 private:
    bool& flag_;
    bool before_;
};

}  // namespace varnholt
