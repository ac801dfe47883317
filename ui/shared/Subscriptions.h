#pragma once

#include <QProperty>
#include <utility>
#include <vector>

namespace tintra {

/// What a view listens to, for as long as it lives.
class Subscriptions {
public:
    template <class Property, class Handler>
    void add(const Property& property, Handler changed) {
        all_.emplace_back(property, std::move(changed));
    }

private:
    std::vector<QPropertyNotifier> all_;
};

} // namespace tintra
