#pragma once

#include <QByteArrayList>

// A realistic initial sync of an account with the given number of chats, in
// TDLib's own JSON: users, new chats, their positions and last messages, and the
// avatar downloads finishing at the end.
QByteArrayList generateInitialSync(int chatCount);
