#pragma once
// The kinds of options in the user's settings. What is stored but not valid counts as not stored. The usual value is not
// stored, so that a later version may have another one.
#include <QColor>
#include <QString>
#include <span>

namespace workbench {

struct NumberOption {
    const char* key;
    int usual, least, most;

    int stored() const;
    void store(int value) const;
};

struct FlagOption {
    const char* key;
    bool usual;

    bool stored() const;
    void store(bool value) const;
};

/// One of several names, of which the first is the usual one.
struct ChoiceOption {
    const char* key;
    std::span<const char* const> names;

    /// The index of the name.
    int stored() const;
    void store(int index) const;
};

/// A font for code by its family; usually the desktop's font with letters of equal width.
struct FamilyOption {
    const char* key;

    QString usual() const;
    /// The usual one if the stored one is not installed or has letters of different widths.
    QString stored() const;
    void store(const QString& family) const;
};

struct ColourOption {
    QString key;
    QColor usual;

    QColor stored() const;
    void store(const QColor& colour) const;
};

} // namespace workbench
