#include "Foundation/NSUUID.h"

#include <QUuid>

std::string NSUUIDString() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper().toStdString();
}
