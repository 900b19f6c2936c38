partial download
