// What the program is built with.
#pragma once

#include <QString>

#include <vector>

class Connection;

/// The program itself or a library in it.
struct Component
{
    QString name;
    QString version;
    QString licence; ///< its short name
    QString text;    ///< who holds the copyright, and the whole licence
};

/// The program first. The journal's connection tells of its engine; throws StoreError.
std::vector<Component> components(Connection &journal);
