// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/what_if.h"

#include <utility>

#include "design/whatIf/what_if_work.h"

namespace varnholt {

WhatIfMemory::WhatIfMemory() : kept_(std::make_unique<WhatIfKept>()) {}
WhatIfMemory::~WhatIfMemory() = default;
WhatIfMemory::WhatIfMemory(WhatIfMemory&&) noexcept = default;
WhatIfMemory& WhatIfMemory::operator=(WhatIfMemory&&) noexcept = default;

WhatIfRun::WhatIfRun(WhatIfCase theCase, const WhatIfWanted& wanted, WhatIfMemory& memory)
    : work_(std::make_unique<WhatIfWork>(std::move(theCase), wanted, memory.kept())) {}
WhatIfRun::~WhatIfRun() = default;
WhatIfRun::WhatIfRun(WhatIfRun&&) noexcept = default;
WhatIfRun& WhatIfRun::operator=(WhatIfRun&&) noexcept = default;

bool WhatIfRun::step() { return work_->step(); }
bool WhatIfRun::isFinal() const { return work_->isFinal(); }
const WhatIf& WhatIfRun::result() { return work_->result(); }

WhatIf whatIfOf(const WhatIfCase& theCase, const WhatIfWanted& wanted, WhatIfMemory& memory) {
    WhatIfRun run(theCase, wanted, memory);
    while (!run.step()) {
    }
    return run.result();
}

}  // namespace varnholt
