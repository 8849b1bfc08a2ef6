#include "Checkout/Status/ShippingStatusProductsView.hpp"

#include "KelDS/KelDS.hpp"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

constexpr std::chrono::milliseconds moveDuration{kel::KelMotion::panel};

double easeOut(double progress) {
    const double left = 1 - progress;
    return 1 - left * left * left;
}

} // namespace

ShippingStatusProductsView::ShippingStatusProductsView(std::optional<ExpansionPanel> shipped,
                                                       std::optional<ExpansionPanel> unshipped,
                                                       std::shared_ptr<ViewAnimating> viewAnimating)
    : shipped_(std::move(shipped)),
      unshipped_(std::move(unshipped)),
      viewAnimating_(std::move(viewAnimating)) {
    connect(&kel::KelAppearance::current(), &kel::KelAppearance::changed, this, [this] {
        if (const int rows = rowCount(); rows > 0) {
            Q_EMIT dataChanged(index(0), index(rows - 1), {ToneRole});
        }
    });
}

void ShippingStatusProductsView::setDelegate(std::weak_ptr<ShippingStatusProductsViewDelegate> delegate) {
    delegate_ = std::move(delegate);
}

void ShippingStatusProductsView::setup() {
    using Delegate = ShippingStatusProductsViewDelegate;
    beginResetModel();
    const auto stack = [this](std::optional<ExpansionPanel>& panel, Notice didExpand, Notice didHide) {
        if (panel) {
            sections_.push_back({*std::exchange(panel, std::nullopt), didExpand, didHide});
            sections_.back().shown = sections_.back().panel.expanded ? sections_.back().products() : 0;
        }
    };
    stack(shipped_, &Delegate::didExpandProductsSent, &Delegate::didHideProductsSent);
    stack(unshipped_, &Delegate::didExpandProductsNotSent, &Delegate::didHideProductsNotSent);
    endResetModel();
}

int ShippingStatusProductsView::rowCount(const QModelIndex& parent) const {
    int rows = 0;
    if (!parent.isValid()) {
        for (const Section& section : sections_) {
            rows += 1 + section.shown;
        }
    }
    return rows;
}

ShippingStatusProductsView::Position ShippingStatusProductsView::position(int row) const {
    for (const Section& section : sections_) {
        if (row <= section.shown) {
            return {&section, row};
        }
        row -= 1 + section.shown;
    }
    return {nullptr, 0};
}

int ShippingStatusProductsView::headOf(const Section& section) const {
    int head = 0;
    for (const Section& above : sections_) {
        if (&above == &section) {
            break;
        }
        head += 1 + above.shown;
    }
    return head;
}

QVariant ShippingStatusProductsView::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto [section, row] = position(index.row());
    switch (role) {
    case IsHeadRole:
        return row == 0;
    case TitleRole:
        return section->panel.title;
    case ToneRole:
        return section->panel.tone();
    case StrokeRole:
        return section->panel.stroke;
    case FillRole:
        return section->panel.fill;
    case ExpandedRole:
        return section->panel.expanded;
    case LastRole:
        return row == section->shown;
    case FirstRole:
        return row == 1;
    case MovingRole:
        return section == moving_ && row > 0;
    case ProductRole: {
        if (row == 0) {
            return QVariant::fromValue(ProductRow());
        }
        const auto product = section->panel.content.productViews[static_cast<std::size_t>(row - 1)];
        return QVariant::fromValue(std::visit([](const auto& view) { return view.row(); }, product));
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> ShippingStatusProductsView::roleNames() const {
    return {
        {IsHeadRole, "isHead"}, {TitleRole, "title"},       {ToneRole, "tone"}, {StrokeRole, "stroke"},
        {FillRole, "fill"},     {ExpandedRole, "expanded"}, {LastRole, "last"}, {FirstRole, "first"},
        {MovingRole, "moving"}, {ProductRole, "product"},
    };
}

void ShippingStatusProductsView::toggle(int row, int rowsInView) {
    const auto found = std::ranges::find_if(sections_, [&](const Section& s) { return headOf(s) == row; });
    if (found == sections_.end()) {
        return;
    }
    Section& section = *found;
    const bool moves = !kel::KelAppearance::current().hasReducedMotion() && section.products() > 0;
    if (moving_ != &section || !moves) {
        finishMove();
    }
    section.panel.expanded = !section.panel.expanded;
    const bool expands = section.panel.expanded;
    if (!moves) {
        setShown(section, expands ? section.products() : 0);
    } else if (moving_ != &section) {
        moving_ = &section;
        panelReveal_.begin();
        setReveal(expands ? 0 : 1);
        setShown(section, std::clamp(rowsInView, 0, section.products()));
    }
    const int head = headOf(section);
    Q_EMIT dataChanged(index(head), index(head + section.shown), {ExpandedRole, LastRole, MovingRole});
    // The host hears of it, which may pop the page, and not while a handler of the page's runs.
    QMetaObject::invokeMethod(
        this,
        [delegate = delegate_, notice = expands ? section.didExpand : section.didHide] {
            if (const auto here = delegate.lock()) {
                ((*here).*notice)();
            }
        },
        Qt::QueuedConnection);
    if (moves) {
        move(section);
    }
}

int ShippingStatusProductsView::headBelow(int row) const {
    const auto found =
        std::ranges::find_if(sections_, [&](const Section& section) { return headOf(section) > row; });
    return found == sections_.end() ? -1 : headOf(*found);
}

int ShippingStatusProductsView::headAbove(int row) const {
    int above = -1;
    for (const Section& section : sections_) {
        above = headOf(section) < row ? headOf(section) : above;
    }
    return above;
}

void ShippingStatusProductsView::reportHeight(int row, double height) {
    const auto product = movingProduct(row);
    if (product && panelReveal_.setHeight(*product, height)) {
        Q_EMIT revealChanged();
    }
}

double ShippingStatusProductsView::shownHeight(int row, double share) const {
    const auto product = movingProduct(row);
    return product ? panelReveal_.shown(*product, share) : 0;
}

std::optional<std::size_t> ShippingStatusProductsView::movingProduct(int row) const {
    const int product = moving_ ? row - headOf(*moving_) - 1 : -1;
    return product >= 0 && product < moving_->shown ? std::optional(static_cast<std::size_t>(product))
                                                    : std::nullopt;
}

void ShippingStatusProductsView::setShown(Section& section, int shown) {
    const int head = headOf(section);
    if (shown > section.shown) {
        beginInsertRows({}, head + section.shown + 1, head + shown);
        section.shown = shown;
        endInsertRows();
    } else if (shown < section.shown) {
        beginRemoveRows({}, head + shown + 1, head + section.shown);
        section.shown = shown;
        endRemoveRows();
    }
}

void ShippingStatusProductsView::setReveal(double reveal) {
    if (reveal != reveal_) {
        reveal_ = reveal;
        Q_EMIT revealChanged();
    }
}

void ShippingStatusProductsView::move(Section& section) {
    const QPointer<ShippingStatusProductsView> self(this);
    const int number = ++moves_;
    viewAnimating_->animate(
        moveDuration,
        [self, number, from = reveal_, to = section.panel.expanded ? 1.0 : 0.0](double progress) {
            if (self && self->moving_ && self->moves_ == number) {
                self->setReveal(from + (to - from) * easeOut(progress));
            }
        },
        [self, number] {
            if (self && self->moves_ == number) {
                self->finishMove();
            }
        });
}

void ShippingStatusProductsView::finishMove() {
    if (Section* section = std::exchange(moving_, nullptr)) {
        const int head = headOf(*section);
        const int moved = section->shown;
        if (section->panel.expanded) {
            setReveal(1);
            setShown(*section, section->products());
        } else {
            setShown(*section, 0);
            setReveal(1);
        }
        Q_EMIT dataChanged(index(head), index(head + std::min(moved, section->shown)),
                           {LastRole, MovingRole});
    }
}

} // namespace quillet
