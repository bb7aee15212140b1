#ifndef ZELCORE_ZELCUSTOMRVAR_H
#define ZELCORE_ZELCUSTOMRVAR_H

#include <vector>

/// One element of a controller variable as the host holds it: Bool as 0 or 1, Int as a signed 32-bit
/// number, Real as it is. The slot keeps its address for the life of the process.
struct ZelVariableSlot;

/// Base of the typed handles on controller variables. Construction registers the name and takes a slot,
/// nothing else, so handles may be constructed when a library is loaded. A read returns what the host
/// holds; a write is sent to the controller and held at once. GUI thread only.
class zelCustomRvar
{
public:
    virtual ~zelCustomRvar() = default;
    zelCustomRvar(const zelCustomRvar&) = delete;
    zelCustomRvar& operator=(const zelCustomRvar&) = delete;

    /// Subscribes (true) or unsubscribes; false when the controller does not offer the variable.
    virtual bool setUsed(bool used) = 0;

protected:
    zelCustomRvar() = default;
};

/// A handle on one element.
class zelCustomRvarScalar : public zelCustomRvar
{
public:
    /// Ends the subscription of this handle.
    ~zelCustomRvarScalar() override;
    bool setUsed(bool used) override;

protected:
    enum class Type { Bool, Int, Real };
    zelCustomRvarScalar(const char* name, Type type, int element, int count);
    double read() const;
    void write(double value);

private:
    ZelVariableSlot* m_slot;
    bool m_used = false;
};

/// The last argument of the constructors is the host's access mode; 1 is read and write.
class zelCustomRvarBool : public zelCustomRvarScalar
{
public:
    zelCustomRvarBool(const char* name, int mode, int element = 0, int count = 1);
    operator bool() const { return getValue(); }
    zelCustomRvarBool& operator=(bool value);
    bool getValue() const { return read() != 0.0; }
    void setValue(bool value);
};

class zelCustomRvarInt : public zelCustomRvarScalar
{
public:
    zelCustomRvarInt(const char* name, int mode, int element = 0, int count = 1);
    operator int() const { return getValue(); }
    zelCustomRvarInt& operator=(int value);
    int getValue() const { return static_cast<int>(read()); }
    void setValue(int value);
};

class zelCustomRvarReal : public zelCustomRvarScalar
{
public:
    zelCustomRvarReal(const char* name, int mode);
    operator double() const { return getValue(); }
    zelCustomRvarReal& operator=(double value);
    double getValue() const { return read(); }
    void setValue(double value);
};

/// A vector of fixed length: one element handle an element, subscribed in index order. An index must lie
/// below `count()`.
class zelCustomRvarIntVect : public zelCustomRvar
{
public:
    zelCustomRvarIntVect(const char* name, int count, int mode);
    ~zelCustomRvarIntVect() override;
    bool setUsed(bool used) override;
    zelCustomRvarInt& operator[](int index) const;
    int count() const { return static_cast<int>(m_elements.size()); }

private:
    std::vector<zelCustomRvarInt*> m_elements;
};

class zelCustomRvarBoolVect : public zelCustomRvar
{
public:
    zelCustomRvarBoolVect(const char* name, int count, int mode);
    ~zelCustomRvarBoolVect() override;
    bool setUsed(bool used) override;
    zelCustomRvarBool& operator[](int index) const;
    int count() const { return static_cast<int>(m_elements.size()); }

private:
    std::vector<zelCustomRvarBool*> m_elements;
};

#endif
