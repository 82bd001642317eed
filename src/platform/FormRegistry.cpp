#include "platform/FormRegistry.h"

#include "platform/FormBase.h"

namespace lumen {

void FormRegistry::add(const QString& name, Factory make)
{
    factories_.insert(name, std::move(make));
}

FormBase* FormRegistry::form(const QString& name)
{
    if (FormBase* made = existing(name))
        return made;
    const auto factory = factories_.constFind(name);
    if (factory == factories_.constEnd())
        return nullptr;
    FormBase* made = (*factory)();
    made_.insert(name, made);
    order_.append(name);
    return made;
}

FormBase* FormRegistry::existing(const QString& name) const
{
    return made_.value(name).data();
}

bool FormRegistry::unload(const QString& name)
{
    FormBase* made = existing(name);
    return !made || made->unload();
}

void FormRegistry::unloadAll(const QStringList& order)
{
    for (const QString& name : order)
        unload(name);
}

void FormRegistry::hideAll()
{
    for (const auto& made : std::as_const(made_)) {
        if (made)
            made->hide();
    }
}

FormRegistry::~FormRegistry()
{
    // Later windows first: they may hold on to earlier ones.
    for (auto name = order_.crbegin(); name != order_.crend(); ++name)
        delete made_.value(*name).data();
}

} // namespace lumen
