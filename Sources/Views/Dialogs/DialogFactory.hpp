#pragma once

#include "Views/Dialogs/Dialog.hpp"

#include <memory>

namespace quillet {

/// Makes dialogs for a screen.
class DialogCreating {
public:
    virtual ~DialogCreating() = default;
    [[nodiscard]] virtual std::unique_ptr<Dialog> create(const DialogPresenter& presenter,
                                                         DialogActions actions) const = 0;
    [[nodiscard]] virtual std::unique_ptr<Dialog> create(const DialogWithIconPresenter& presenter,
                                                         DialogActions actions) const = 0;
};

class DialogFactory final : public DialogCreating {
public:
    [[nodiscard]] std::unique_ptr<Dialog> create(const DialogPresenter& presenter,
                                                 DialogActions actions) const override {
        return std::make_unique<Dialog>(presenter, std::make_shared<ViewAnimatingWrapper>(),
                                        std::move(actions));
    }
    [[nodiscard]] std::unique_ptr<Dialog> create(const DialogWithIconPresenter& presenter,
                                                 DialogActions actions) const override {
        return std::make_unique<Dialog>(presenter, std::make_shared<ViewAnimatingWrapper>(),
                                        std::move(actions));
    }
};

} // namespace quillet
