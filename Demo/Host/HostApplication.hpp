#pragma once

#include "PhoneArea.hpp"
#include "Sandbox/Journal.hpp"
#include "Sandbox/LiveStatus.hpp"
#include <Quillet/Quillet.hpp>

#include <QObject>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <memory>

namespace demo {

/// A page of the host's own that the module navigates to.
struct HostPage {
    QString title;
    QString message;
    kel::KelIconNumber icon;
};

/// The sample host: one window with a phone-sized screen, on which it opens the module, and beside it, where
/// there is room, the journal. It is also the module's navigation delegate. Main thread only.
class HostApplication final : public QObject, public quillet::QuilletNavigationDelegate {
    Q_OBJECT
    Q_PROPERTY(QVariantList orders READ orders CONSTANT FINAL)
    Q_PROPERTY(QObject* journal READ journal CONSTANT FINAL)
    Q_PROPERTY(QObject* status READ status CONSTANT FINAL)

public:
    /// `orders` are the incoming orders that the home screen lists, as JSON.
    HostApplication(Journal& journal, LiveStatus& status, PhoneArea& area, const QByteArray& orders);
    ~HostApplication() override;

    /// Loads and shows the window, as large as its phone-sized area asks for. False, with the reason on
    /// standard error, if its QML does not load.
    [[nodiscard]] bool load(const std::shared_ptr<HostApplication>& self);
    [[nodiscard]] QQuickWindow* window() const;
    /// The phone-sized part of the window, and what decides about its size.
    [[nodiscard]] QQuickItem* phone() const;
    [[nodiscard]] PhoneArea& area() const { return area_; }

    struct Order {
        quillet::CartForConsultant cart;
        std::string accessToken;
        std::string authorizationProvider;
        quillet::Environment environment = quillet::Environment::dev;
        bool operator==(const Order&) const = default;
    };
    /// Opens the module for an order; false if its token cannot be signed or its screen not shown.
    bool open(const Order& order);
    /// Shows the first screen's answer to a refusal with this back end code, without any request.
    bool openHandmade(const std::string& refusal);
    /// Removes the module's screens.
    void close();

    /// Opens the order at `index` of the home screen's list.
    Q_INVOKABLE void openOrder(int index);

    void navigateToCart() override;
    void navigateToHome() override;
    void navigateToShareMagazine() override;

    [[nodiscard]] QVariantList orders() const { return orders_; }
    [[nodiscard]] QObject* journal() const { return &journal_; }
    [[nodiscard]] QObject* status() const { return &status_; }

private:
    bool embed(const Order& order);
    [[nodiscard]] QQuickItem& stack() const;
    void showHostPage(const HostPage& page);

    Journal& journal_;
    LiveStatus& status_;
    PhoneArea& area_;
    QVariantList orders_;
    std::weak_ptr<HostApplication> self_;
    QQmlApplicationEngine engine_;
};

} // namespace demo
