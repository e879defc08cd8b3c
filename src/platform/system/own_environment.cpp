#include "platform/system/own_environment.h"

#include <QtGlobal>

#include <map>
#include <string>

namespace corvane::own_environment {

namespace {

struct Variable {
    bool wasThere = false;
    QByteArray found;
    QByteArray own;
};

std::map<std::string, Variable> &variables()
{
    static std::map<std::string, Variable> all;
    return all;
}

} // namespace

void set(const char *name, const QByteArray &value)
{
    const auto [entry, isNew] = variables().try_emplace(name);
    Variable &variable = entry->second;
    if (isNew) {
        variable.wasThere = qEnvironmentVariableIsSet(name);
        variable.found = qgetenv(name);
    }
    variable.own = value;
    qputenv(name, value);
}

AsFound::AsFound()
{
    for (const auto &[name, variable] : variables()) {
        if (variable.wasThere)
            qputenv(name.c_str(), variable.found);
        else
            qunsetenv(name.c_str());
    }
}

AsFound::~AsFound()
{
    for (const auto &[name, variable] : variables())
        qputenv(name.c_str(), variable.own);
}

} // namespace corvane::own_environment
