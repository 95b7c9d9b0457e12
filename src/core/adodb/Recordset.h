#pragma once

#include "core/adodb/Value.h"

#include <QByteArray>
#include <QString>
#include <map>
#include <memory>
#include <vector>

class Connection;
class QIODevice;
class RowPack;

enum class CursorLocation
{
    UseServer = 2,
    UseClient = 3
};

enum class LockType
{
    ReadOnly = 1,
    Pessimistic = 2
};

enum class CursorType
{
    ForwardOnly = 0,
    Keyset = 1,
    Dynamic = 2
};

/// The rows of one selection, with a current row. Rows are fetched whole when it opens and stay packed until a field is
/// asked for. A recordset of a plain "Select * from T" with a lock can change and delete its rows.
class Recordset
{
public:
    /// One column of the current row.
    class Field
    {
    public:
        [[nodiscard]] Value Get() const;
        /// Keeps a new value for `Update`. Raises 3251 where the rows can't be changed.
        void Set(Value value) const;

    private:
        friend class Recordset;
        Field(Recordset& owner, int column) : m_owner(owner), m_column(column) {}
        Recordset& m_owner;
        int m_column;
    };

    Recordset();
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    ::CursorLocation CursorLocation = ::CursorLocation::UseServer;
    ::LockType LockType = ::LockType::ReadOnly;
    ::CursorType CursorType = ::CursorType::ForwardOnly;

    /// Runs the selection; the first row becomes current. Raises 3705 where it is open, 3709 where the connection is
    /// closed, and the engine's errors.
    void Open(const QString& statement, Connection& connection);
    /// Takes the rows of an XML rowset (RowsetReader.h); they can't be changed. Raises 3705 where it is open,
    /// EngineFailure where the document is no rowset.
    void Open(QIODevice& rowset);
    /// Raises 3704 where it is closed.
    void Close();
    /// Writes the rows of a table, as they were fetched, as an XML rowset (RowsetWriter.h) into a new file, for its
    /// owner's eyes only where `secret` is set. Raises 58 where the file exists, 3219 where the rows are not those of
    /// one table, and the errors of files.
    void Save(const QString& fileName, bool secret = false) const;

    /// The number of rows with a client cursor, otherwise -1.
    [[nodiscard]] int RecordCount() const;
    [[nodiscard]] bool Bof() const;
    [[nodiscard]] bool Eof() const;

    // Moves raise 3021 where there is no row to move from or to.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    /// Goes forward from the current row to the first whose column equals the value of "Name=value"; to the end without
    /// one.
    void Find(const QString& criterion);

    [[nodiscard]] int FieldCount() const;
    [[nodiscard]] QString FieldName(int column) const;
    /// A field by name (case-blind) or position from 0. Raises 3265 where there is none, 3021 without a current row.
    [[nodiscard]] Field Fields(QLatin1StringView name);
    [[nodiscard]] Field Fields(int column);
    /// A field by a name that is not known until it is asked for.
    [[nodiscard]] Field Fields(const QString& name);

    /// Writes the kept values of the current row.
    void Update();
    /// Deletes the current row from the table; it stays current, unreadable, until the next move.
    void Delete();
    /// Runs the selection again; the first row becomes current.
    void Requery();
    /// Reads the values again and stays on the current row.
    void Resync();

private:
    void Fetch();
    void RequireOpen() const;
    void RequireRow() const;
    void RequireUpdatable() const;
    [[nodiscard]] qint64 RowId() const;
    /// Runs a statement of this recordset's own, whose failure counts as the connection's.
    void RunOnStore(const QString& text, const std::vector<QVariant>& values);
    /// The column where it is one of those that were asked for. Raises 3265 otherwise.
    [[nodiscard]] int Asked(int column) const;

    Connection* m_connection = nullptr;
    QString m_statement;
    QString m_table; ///< the table whose rows can be changed, otherwise empty
    std::unique_ptr<RowPack> m_rows;
    qsizetype m_row = -1;
    int m_lastColumn = -1;
    std::map<int, Value> m_pending;
};
