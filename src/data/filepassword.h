// The password with which a user has locked the journal's file.
#pragma once

#include <QString>

#include <memory>
#include <string_view>

/// A typed password as it is handed to the engine: in UTF-8, composed (NFC), so that the same one
/// opens the file on every system. All copies share one piece of memory, which is overwritten when
/// the last of them goes. An empty one stands for a file that isn't locked.
class FilePassword
{
public:
    /// Characters that a password can have.
    static constexpr int longest = 128;

    FilePassword() = default;
    explicit FilePassword(const QString &typed);

    bool isEmpty() const { return !m_secret; }
    /// Whether the engine would take it for a key that is not to be derived.
    bool isTakenForKey() const;
    std::string_view bytes() const;
    bool operator==(const FilePassword &other) const { return bytes() == other.bytes(); }

private:
    class Secret;

    std::shared_ptr<const Secret> m_secret;
};
