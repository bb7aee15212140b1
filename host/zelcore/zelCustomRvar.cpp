#include "zelCustomRvar.h"

#include "VariableTable.h"

namespace {

template <typename Element>
std::vector<Element*> makeElements(const char* name, int count, int mode)
{
    std::vector<Element*> elements;
    elements.reserve(count);
    for (int element = 0; element < count; ++element)
        elements.push_back(new Element(name, mode, element, count));
    return elements;
}

template <typename Element>
bool setAllUsed(const std::vector<Element*>& elements, bool used)
{
    bool all = true;
    for (Element* element : elements)
        all = element->setUsed(used) && all;
    return all;
}

template <typename Element>
Element& elementAt(const std::vector<Element*>& elements, int index)
{
    Q_ASSERT(index >= 0 && index < static_cast<int>(elements.size()));
    return *elements[index];
}

} // namespace

zelCustomRvarScalar::zelCustomRvarScalar(const char* name, Type type, int element, int count)
    : m_slot(VariableTable::instance().slot(name,
                                            type == Type::Bool  ? ControllerLink::VariableType::Bool
                                            : type == Type::Int ? ControllerLink::VariableType::Int
                                                                : ControllerLink::VariableType::Real,
                                            element, count))
{
}

zelCustomRvarScalar::~zelCustomRvarScalar()
{
    if (m_used)
        VariableTable::instance().setUsed(*m_slot, m_used, false);
}

bool zelCustomRvarScalar::setUsed(bool used)
{
    return VariableTable::instance().setUsed(*m_slot, m_used, used);
}

double zelCustomRvarScalar::read() const
{
    return m_slot->value;
}

void zelCustomRvarScalar::write(double value)
{
    VariableTable::instance().write(*m_slot, value);
}

zelCustomRvarBool::zelCustomRvarBool(const char* name, int /*mode*/, int element, int count)
    : zelCustomRvarScalar(name, Type::Bool, element, count)
{
}

zelCustomRvarBool& zelCustomRvarBool::operator=(bool value)
{
    setValue(value);
    return *this;
}

void zelCustomRvarBool::setValue(bool value)
{
    write(value ? 1.0 : 0.0);
}

zelCustomRvarInt::zelCustomRvarInt(const char* name, int /*mode*/, int element, int count)
    : zelCustomRvarScalar(name, Type::Int, element, count)
{
}

zelCustomRvarInt& zelCustomRvarInt::operator=(int value)
{
    setValue(value);
    return *this;
}

void zelCustomRvarInt::setValue(int value)
{
    write(value);
}

zelCustomRvarReal::zelCustomRvarReal(const char* name, int /*mode*/)
    : zelCustomRvarScalar(name, Type::Real, 0, 1)
{
}

zelCustomRvarReal& zelCustomRvarReal::operator=(double value)
{
    setValue(value);
    return *this;
}

void zelCustomRvarReal::setValue(double value)
{
    write(value);
}

zelCustomRvarIntVect::zelCustomRvarIntVect(const char* name, int count, int mode)
    : m_elements(makeElements<zelCustomRvarInt>(name, count, mode))
{
}

zelCustomRvarIntVect::~zelCustomRvarIntVect()
{
    qDeleteAll(m_elements);
}

bool zelCustomRvarIntVect::setUsed(bool used)
{
    return setAllUsed(m_elements, used);
}

zelCustomRvarInt& zelCustomRvarIntVect::operator[](int index) const
{
    return elementAt(m_elements, index);
}

zelCustomRvarBoolVect::zelCustomRvarBoolVect(const char* name, int count, int mode)
    : m_elements(makeElements<zelCustomRvarBool>(name, count, mode))
{
}

zelCustomRvarBoolVect::~zelCustomRvarBoolVect()
{
    qDeleteAll(m_elements);
}

bool zelCustomRvarBoolVect::setUsed(bool used)
{
    return setAllUsed(m_elements, used);
}

zelCustomRvarBool& zelCustomRvarBoolVect::operator[](int index) const
{
    return elementAt(m_elements, index);
}
