// SPDX-License-Identifier: GPL-3.0-or-later
// The application object that every widget needs, on a screen of memory.
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

class WithApplication : public testing::Environment {
 public:
    void SetUp() override {
        if (qApp != nullptr) return;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QApplication>(count_, arguments_);
    }
    void TearDown() override { application_.reset(); }

 private:
    char name_[14] = "test_desktop";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::unique_ptr<QApplication> application_;
};

const testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new WithApplication);

}  // namespace
