#include "Sandbox/Journal.hpp"

#include <QJsonObject>
#include <QTime>
#include <QUrl>

namespace demo {

namespace {

QString timeStamp(const QString& format) {
    return QTime::currentTime().toString(format);
}

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

} // namespace

qsizetype Journal::entry(quint64 exchange, const quillet::platform::URLRequest& request) {
    for (qsizetype i = requests_.size() - 1; i >= 0; --i) {
        if (requests_[i].toMap().value(QStringLiteral("exchange")).toULongLong() == exchange) {
            return i;
        }
    }
    QVariantMap headers;
    for (const auto& [name, value] : request.headerFields.all()) {
        const bool secret = name == "Consultant-Token";
        headers.insert(text(name), secret ? QString::number(value.size()) : text(value));
    }
    const QString url = text(request.url.absoluteString());
    const QString host = url.section(u'/', 0, 2);
    requests_.append(QVariantMap{
        {QStringLiteral("exchange"), exchange},
        {QStringLiteral("time"), timeStamp(QStringLiteral("HH:mm:ss.zzz"))},
        {QStringLiteral("method"), text(request.httpMethod.value_or("GET"))},
        {QStringLiteral("url"), url},
        {QStringLiteral("path"), url.mid(host.size())},
        {QStringLiteral("headers"), headers},
        {QStringLiteral("pending"), true},
        {QStringLiteral("status"), 0},
        {QStringLiteral("milliseconds"), 0},
    });
    return requests_.size() - 1;
}

void Journal::requestStarted(quint64 exchange, const quillet::platform::URLRequest& request) {
    entry(exchange, request);
    Q_EMIT requestsChanged();
}

void Journal::requestEnded(quint64 exchange, const quillet::platform::URLRequest& request,
                           const quillet::platform::URLSessionExchangeEnd& end) {
    const auto index = entry(exchange, request);
    QVariantMap row = requests_[index].toMap();
    row[QStringLiteral("pending")] = false;
    row[QStringLiteral("status")] = qint64(end.statusCode);
    row[QStringLiteral("milliseconds")] = qint64(end.duration.count());
    if (end.errorCode) {
        row[QStringLiteral("error")] = qint64(*end.errorCode);
    }
    requests_[index] = row;
    Q_EMIT requestsChanged();
}

void Journal::screenTracked(const QString& name) {
    analytics_.append(QVariantMap{{QStringLiteral("screen"), name},
                                  {QStringLiteral("time"), timeStamp(QStringLiteral("HH:mm:ss"))}});
    Q_EMIT analyticsChanged();
}

void Journal::eventTracked(const kel::KelAnalyticsEventType& event) {
    analytics_.append(QVariantMap{{QStringLiteral("category"), text(event.category())},
                                  {QStringLiteral("action"), text(event.action())},
                                  {QStringLiteral("label"), text(event.label().value_or(""))},
                                  {QStringLiteral("time"), timeStamp(QStringLiteral("HH:mm:ss"))}});
    Q_EMIT analyticsChanged();
}

void Journal::navigated(const QString& operation, kel::KelIconNumber icon) {
    navigation_.append(QVariantMap{{QStringLiteral("operation"), operation},
                                   {QStringLiteral("icon"), int(icon)},
                                   {QStringLiteral("time"), timeStamp(QStringLiteral("HH:mm:ss"))}});
    Q_EMIT navigationChanged();
}

void Journal::beginOrder() {
    requests_.clear();
    analytics_.clear();
    Q_EMIT requestsChanged();
    Q_EMIT analyticsChanged();
}

void Journal::clear() {
    beginOrder();
    navigation_.clear();
    Q_EMIT navigationChanged();
}

QJsonArray Journal::requestsJson() const {
    QJsonArray result;
    for (const QVariant& request : requests_) {
        const QVariantMap row = request.toMap();
        result.append(QJsonObject{
            {QStringLiteral("method"), row[QStringLiteral("method")].toString()},
            {QStringLiteral("url"), row[QStringLiteral("url")].toString()},
            {QStringLiteral("headers"), QJsonObject::fromVariantMap(row[QStringLiteral("headers")].toMap())},
            {QStringLiteral("status"), row[QStringLiteral("status")].toLongLong()},
        });
    }
    return result;
}

QJsonArray Journal::analyticsJson() const {
    QJsonArray result;
    for (const QVariant& entry : analytics_) {
        QVariantMap row = entry.toMap();
        row.remove(QStringLiteral("time"));
        result.append(QJsonObject::fromVariantMap(row));
    }
    return result;
}

QJsonArray Journal::navigationJson() const {
    QJsonArray result;
    for (const QVariant& entry : navigation_) {
        result.append(entry.toMap().value(QStringLiteral("operation")).toString());
    }
    return result;
}

} // namespace demo
