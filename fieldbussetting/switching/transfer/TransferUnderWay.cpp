#include "TransferUnderWay.h"

namespace {
const TransferUnderWay* underWay = nullptr;
} // namespace

TransferUnderWay::TransferUnderWay(QWidget* page)
    : m_page(page)
{
    underWay = this;
}

TransferUnderWay::~TransferUnderWay()
{
    underWay = nullptr;
}

const TransferUnderWay* TransferUnderWay::current()
{
    return underWay;
}
