#pragma once

// `objc_msgSend`: GNU's runtime looks a message up, and whoever asks calls what is found.
extern "C" void sendMessage();
