// The program's windows by name. Each is made when first used and lives to
// the end; windows of later work join by registering how they are made.
#pragma once

#include <QHash>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>

namespace lumen {

class FormBase;

class FormRegistry {
public:
    using Factory = std::function<FormBase*()>;

    void add(const QString& name, Factory make);
    bool knows(const QString& name) const { return factories_.contains(name); }

    // The window, made now if it wasn't yet; nullptr for a name not registered.
    FormBase* form(const QString& name);
    // The window if it was made, else nullptr; never makes one.
    FormBase* existing(const QString& name) const;

    // Unloads the window if it was made (a window never made is not made to
    // be unloaded). True when it is unloaded afterwards.
    bool unload(const QString& name);
    // Unloads every window in the given order.
    void unloadAll(const QStringList& order);
    // Hides every window that was made.
    void hideAll();

    ~FormRegistry();

private:
    QHash<QString, Factory> factories_;
    QHash<QString, QPointer<FormBase>> made_;
    QStringList order_; // in the order they were made, for deletion
};

} // namespace lumen
