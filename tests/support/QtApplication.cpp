#include <gtest/gtest.h>

#include <QGuiApplication>
#include <optional>

namespace {

/// The application that every test of this program runs in.
class Application final : public testing::Environment {
    void SetUp() override { app_.emplace(count_, arguments_); }
    void TearDown() override { app_.reset(); }

    int count_ = 1;
    char name_[6] = "tests";
    char* arguments_[2] = {name_, nullptr};
    std::optional<QGuiApplication> app_;
};

[[maybe_unused]] const auto* kApplication = testing::AddGlobalTestEnvironment(new Application);

} // namespace
