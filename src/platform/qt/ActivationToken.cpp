#include "platform/qt/ActivationToken.h"

#include <QByteArray>
#include <QtGlobal>

namespace velmora {
namespace {

// Where the toolkit looks for it at each activation.
constexpr const char* kVariable = "XDG_ACTIVATION_TOKEN";

}  // namespace

ActivationToken::ActivationToken(const std::string& token) {
    if (!token.empty())
        qputenv(kVariable, QByteArray::fromStdString(token));
}

ActivationToken::~ActivationToken() {
    qunsetenv(kVariable);
}

std::string tokenOfThisStart() {
    const QByteArray token = qgetenv(kVariable);
    return (token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token).toStdString();
}

}  // namespace velmora
