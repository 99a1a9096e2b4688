#include "qt/list_drag.h"

#include <filesystem>

#include <QCoreApplication>

#include "core/text.h"

namespace velmora::qt {

namespace {

const QString wordFormat = QStringLiteral("application/x-velmora-list");
const QString processFormat = QStringLiteral("application/x-velmora-process");
const QString addressFormat = QStringLiteral("text/uri-list");  // one address a line, ended by CR LF
constexpr const char* scheme = "file://";

// Another running Velmora has lists of the same words.
QByteArray thisProcess() {
  return QByteArray::number(QCoreApplication::applicationPid());
}

QByteArray bytesOf(const Text& text) {
  return QByteArray::fromStdString(core::toBytes(text));
}

// The path of an address of this machine; empty for any other.
Bytes pathOf(QByteArray address) {
  if (!address.startsWith(scheme)) return {};
  address.remove(0, static_cast<qsizetype>(qstrlen(scheme)));
  const qsizetype host = address.indexOf('/');
  const QByteArray name = address.left(host);
  if (host < 0 || (!name.isEmpty() && name != "localhost")) return {};
  return QByteArray::fromPercentEncoding(address.mid(host)).toStdString();
}

}  // namespace

std::unique_ptr<QMimeData> carriedBy(const ui::ListBox& list) {
  auto data = std::make_unique<QMimeData>();
  if (!list.dragWord.empty()) {
    data->setData(wordFormat, bytesOf(list.dragWord));
    data->setData(processFormat, thisProcess());
  }
  if (list.dragFiles)
    if (const std::vector<Text> paths = list.dragFiles(); !paths.empty())
      data->setData(addressFormat, addressesOf(paths));
  if (data->formats().isEmpty()) return nullptr;
  return data;
}

Text wordIn(const QMimeData& data) {
  if (data.data(processFormat) != thisProcess()) return {};
  return core::fromBytes(data.data(wordFormat).toStdString());
}

QByteArray addressesOf(const std::vector<Text>& paths) {
  QByteArray lines;
  for (const Text& path : paths) lines += scheme + bytesOf(path).toPercentEncoding("/") + "\r\n";
  return lines;
}

std::vector<Text> foldersIn(const QMimeData& data) {
  std::vector<Text> folders;
  for (const QByteArray& line : data.data(addressFormat).split('\n')) {
    const Bytes path = pathOf(line.trimmed());
    std::error_code unknown;
    if (!path.empty() && std::filesystem::is_directory(path, unknown))
      folders.push_back(core::fromBytes(path));
  }
  return folders;
}

}  // namespace velmora::qt
