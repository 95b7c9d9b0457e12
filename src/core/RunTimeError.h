#pragma once

#include <QString>
#include <exception>

/// The numbers that our own code raises. Engine and driver faults carry the negative numbers below.
namespace ErrorNumber {
inline constexpr int InvalidProcedureCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ObjectNotSet = 91;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int ObjectRequired = 424;
inline constexpr int KeyAlreadyThere = 457;
inline constexpr int WrongArguments = 3001;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int NotAllowedHere = 3219;
inline constexpr int NotUpdatable = 3251;
inline constexpr int ItemNotFound = 3265;
inline constexpr int WrongType = 3421;
inline constexpr int ObjectClosed = 3704;
inline constexpr int ObjectOpen = 3705;
inline constexpr int ConnectionClosed = 3709;
inline constexpr int DictionaryRemove = 32811;
inline constexpr int KeyNotUnique = 35602;

inline constexpr int EngineSyntax = -2147217900;
inline constexpr int EngineUnknownColumn = -2147217904;
inline constexpr int EngineUnknownTable = -2147217865;
inline constexpr int EngineTypeMismatch = -2147217913;
inline constexpr int EnginePassword = -2147217843;
inline constexpr int EngineFailure = -2147467259;
} // namespace ErrorNumber

/// The one exception that crosses our own code: a number and the words that the person will read.
class RunTimeError : public std::exception
{
public:
    /// An error with the standard description of its number.
    explicit RunTimeError(int number);
    RunTimeError(int number, QString description);

    [[nodiscard]] int Number() const noexcept { return m_number; }
    [[nodiscard]] const QString& Description() const noexcept { return m_description; }
    [[nodiscard]] const char* what() const noexcept override { return m_utf8.constData(); }

    /// The standard words for a number; a general sentence for a number without words of its own.
    [[nodiscard]] static QString StandardDescription(int number);

private:
    int m_number;
    QString m_description;
    QByteArray m_utf8;
};
